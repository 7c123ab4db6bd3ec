// A command that judges or writes files cannot do so.
#pragma once

#include <stdexcept>

namespace localize {

/// It has found nothing, which must not be taken for findings; how it was called is right.
class CannotRunError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace localize
