// What tests have to know of the system.
#pragma once

#include "qor/result_codes.h"

namespace lm_test {

/// Whether names that differ in letter case alone are names of different files.
inline constexpr bool kCaseTellsFilesApart = false;

/// Whether tests can make symbolic links.
inline constexpr bool kHasSymbolicLinks = false;

/// Whether what cannot be decoded becomes as many U+FFFD as it has maximal ill-formed parts.
inline constexpr bool kCountsIllFormedParts = false;

/// Whether the module's library knows the locales of the machine, and has the test's global one.
inline constexpr bool kSharesLocales = false;

/// What a move of a file's position answers that ends beyond what can be counted.
inline constexpr qor::result_t kEndlessSeek = qor::detail::ResultCode(0x80070083);

/// How the compiler passes the object of a member function.
#ifdef _WIN64
#define LM_MEMBER_FUNCTION
#else
#define LM_MEMBER_FUNCTION __attribute__((thiscall))
#pragma GCC diagnostic ignored "-Wattributes"  // which would have it for true members only
#endif

/// A slot of an interface, as a function that is given its object.
template <class Return, class... Arguments>
using MemberFunction = Return(LM_MEMBER_FUNCTION*)(void* object, Arguments...);

/// Calls a function with a counted pointer by value, and with the reference that comes with it: the pointer with
/// 32 bits, its address with 64.
template <class Pointer, class Call>
auto PassCounted(Pointer pointer, Call call) {
    auto* passed = pointer.Detach();
    if constexpr (sizeof(void*) == 4) {
        return call(passed);
    } else {
        return call(&passed);
    }
}

}  // namespace lm_test
