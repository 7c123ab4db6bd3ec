// Names that become part of a path: which of them would lead out of the localisation tree.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string_view>

#include "localization_manager/Culture.h"

namespace localization_manager::host {

/// Whether a host of the kit refuses names that lead out of the tree. Scopes, keys of files and
/// language tags often come from outside: from a plug-in, a document, a user's settings.
enum class Names : bool { InsideTheTree, Any };

namespace detail {

/// Windows, where "C:" names a drive and "file:stream" another file.
inline constexpr bool kColonLeadsOut = std::filesystem::path::preferred_separator == '\\';

template <class Char>
bool HasAny(std::basic_string_view<Char> name, std::initializer_list<char> characters) {
    for (const char character : characters) {
        if (name.find(static_cast<Char>(character)) != std::basic_string_view<Char>::npos) {
            return true;
        }
    }
    return false;
}

/// Whether one of the components between separators, written either way, is "..".
template <class Char>
bool HasParentComponent(std::basic_string_view<Char> name) {
    constexpr Char kSeparators[] = {'/', '\\', 0};
    constexpr Char kParent[] = {'.', '.', 0};
    while (true) {
        const auto end = name.find_first_of(kSeparators);
        if (name.substr(0, end) == kParent) {
            return true;
        }
        if (end == std::basic_string_view<Char>::npos) {
            return false;
        }
        name.remove_prefix(end + 1);
    }
}

template <class Char>
bool LeadsOut(std::basic_string_view<Char> name) {
    return HasParentComponent(name) || (kColonLeadsOut && HasAny(name, {':'}));
}

}  // namespace detail

/// Whether the name of a scope, or the key of a resource file, leads out of the tree. Directories
/// below the place where it is looked for are allowed.
inline bool LeadsOutOfTheTree(std::u16string_view scopeOrKey) {
    return detail::LeadsOut(scopeOrKey);
}

/// Whether the region or the variant of a culture does: they are parts of one directory's name, so
/// that any separator is too much.
inline bool LeadsOutOfTheTree(const Culture& culture) {
    for (const std::string_view part : {culture.region.view(), culture.variant.view()}) {
        if (detail::LeadsOut(part) || detail::HasAny(part, {'/', '\\'})) {
            return true;
        }
    }
    return false;
}

}  // namespace localization_manager::host
