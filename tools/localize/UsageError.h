// The command line cannot be understood.
#pragma once

#include <stdexcept>

namespace localize {

class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace localize
