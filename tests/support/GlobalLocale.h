// The process's global locale, changed for a test.
#pragma once

#include <locale>

namespace lm_test {

/// Sets the global locale of the C++ library and with it that of the C runtime, until the end of
/// the scope.
class GlobalLocale {
public:
    /// @throws std::runtime_error when the machine does not have the locale.
    explicit GlobalLocale(const char* name) : before_(std::locale::global(std::locale(name))) {}
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(before_); }

private:
    const std::locale before_;
};

}  // namespace lm_test
