// The words of an exception.
#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <string>

namespace lm_test {

/// What the exception that `call` throws says; it must be an `Expected`.
template <class Expected = std::exception, class Call>
std::string ErrorText(Call call) {
    try {
        call();
    } catch (const Expected& caught) {
        return caught.what();
    } catch (const std::exception& caught) {
        ADD_FAILURE() << "another kind of exception";
        return caught.what();
    }
    return "no exception";
}

}  // namespace lm_test
