// The process's global locale, changed for a test.
#pragma once

#include <locale>

namespace lm_test {

/// Sets the global locale of the C++ library and with it that of the C runtime, until the end of
/// the scope.
class GlobalLocale {
public:
    /// @throws std::runtime_error when the machine does not have the locale.
    explicit GlobalLocale(const char* name) : GlobalLocale(std::locale(name)) {}
    explicit GlobalLocale(const std::locale& locale) : before_(std::locale::global(locale)) {}
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(before_); }

private:
    const std::locale before_;
};

/// Maps one ASCII letter unusually.
struct TurkishLetters : std::ctype<wchar_t> {
    wchar_t do_tolower(wchar_t letter) const override {
        return letter == L'I' ? L'\u0131' : std::ctype<wchar_t>::do_tolower(letter);
    }
};

}  // namespace lm_test
