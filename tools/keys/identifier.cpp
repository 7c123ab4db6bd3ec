#include "keys/identifier.h"

#include <algorithm>
#include <array>

namespace lm_keys {

namespace {

bool IsCapital(char unit) {
    return unit >= 'A' && unit <= 'Z';
}

bool IsDigit(char unit) {
    return unit >= '0' && unit <= '9';
}

/// C++20's, so that programs may go on to it.
constexpr std::array<std::string_view, 92> kKeywords = {
    "alignas",       "alignof",     "and",
    "and_eq",        "asm",         "auto",
    "bitand",        "bitor",       "bool",
    "break",         "case",        "catch",
    "char",          "char16_t",    "char32_t",
    "char8_t",       "class",       "co_await",
    "co_return",     "co_yield",    "compl",
    "concept",       "const",       "const_cast",
    "consteval",     "constexpr",   "constinit",
    "continue",      "decltype",    "default",
    "delete",        "do",          "double",
    "dynamic_cast",  "else",        "enum",
    "explicit",      "export",      "extern",
    "false",         "float",       "for",
    "friend",        "goto",        "if",
    "inline",        "int",         "long",
    "mutable",       "namespace",   "new",
    "noexcept",      "not",         "not_eq",
    "nullptr",       "operator",    "or",
    "or_eq",         "private",     "protected",
    "public",        "register",    "reinterpret_cast",
    "requires",      "return",      "short",
    "signed",        "sizeof",      "static",
    "static_assert", "static_cast", "struct",
    "switch",        "template",    "this",
    "thread_local",  "throw",       "true",
    "try",           "typedef",     "typeid",
    "typename",      "union",       "unsigned",
    "using",         "virtual",     "void",
    "volatile",      "wchar_t",     "while",
    "xor",           "xor_eq"};

/// What stands in the classes that cpp_header.cpp writes.
constexpr std::array<std::string_view, 4> kOwnNames = {"Keys", "Text", "Variant", "handle"};

template <class Names>
bool Has(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsTemplateParameter(std::string_view name) {
    return name.size() > 1 && name[0] == 'T' && std::all_of(name.begin() + 1, name.end(), IsDigit);
}

}  // namespace

std::string IdentifierOf(std::string_view name) {
    std::string identifier;
    for (const char unit : name) {
        const bool isAllowed = IsCapital(unit) || (unit >= 'a' && unit <= 'z') || IsDigit(unit);
        if (isAllowed || identifier.empty() || identifier.back() != '_') {
            identifier += isAllowed ? unit : '_';
        }
    }
    if (identifier.size() > 1 && identifier[0] == '_' && IsCapital(identifier[1])) {
        identifier.erase(0, 1);
    }
    if (!identifier.empty() && IsDigit(identifier[0])) {
        identifier.insert(0, 1, '_');
    }
    if (Has(kKeywords, identifier) || Has(kOwnNames, identifier) ||
        IsTemplateParameter(identifier)) {
        identifier += '_';
    }
    return identifier;
}

}  // namespace lm_keys
