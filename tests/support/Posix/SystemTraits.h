// What tests have to know of the system.
#pragma once

#include "qor/result_codes.h"

namespace lm_test {

/// Whether names that differ in letter case alone are names of different files.
inline constexpr bool kCaseTellsFilesApart = true;

/// Whether tests can make symbolic links.
inline constexpr bool kHasSymbolicLinks = true;

/// Whether what cannot be decoded becomes as many U+FFFD as it has maximal ill-formed parts.
inline constexpr bool kCountsIllFormedParts = true;

/// Whether the module's library knows the locales of the machine, and has the test's global one.
inline constexpr bool kSharesLocales = true;

/// What a move of a file's position answers that ends beyond what can be counted.
inline constexpr qor::result_t kEndlessSeek = qor::rcInvalidArgument;

/// How the compiler passes the object of a member function.
#define LM_MEMBER_FUNCTION

/// A slot of an interface, as a function that is given its object.
template <class Return, class... Arguments>
using MemberFunction = Return (*)(void* object, Arguments...);

/// Calls a function with a counted pointer by value: it is passed by its address and stays the caller's.
template <class Pointer, class Call>
auto PassCounted(Pointer pointer, Call call) {
    return call(&pointer);
}

}  // namespace lm_test
