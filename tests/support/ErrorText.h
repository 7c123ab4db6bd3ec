// The words of an exception.
#pragma once

#include <exception>
#include <string>

namespace lm_test {

/// What the exception that `call` throws says, nothing when there is none. One that is no `Expected`
/// passes on and fails the test.
template <class Expected = std::exception, class Call>
std::string ErrorText(Call call) {
    try {
        call();
    } catch (const Expected& caught) {
        return caught.what();
    }
    return "";
}

}  // namespace lm_test
