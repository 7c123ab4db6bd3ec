// A failure that the module has told of itself.
#pragma once

#include <stdexcept>

namespace localize {

/// One failure, one report: whoever catches it says nothing more.
class ReportedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace localize
