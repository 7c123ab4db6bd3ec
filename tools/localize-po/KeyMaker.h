// Keys for messages that have none.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace localize_po {

/// A key is the first words of a text, each with a capital, behind those of its context, each part of
/// which is a part of the key: "menu|file", "_Open the file" is "Menu.File.OpenTheFile". Only letters
/// and digits of ASCII count, and directives of printf do not. What begins with a digit, or has no
/// word, begins with "Text". A key that is taken gets "_2", "_3" behind it.
class KeyMaker {
public:
    std::string Make(std::string_view context, std::string_view text);

private:
    std::map<std::string, std::size_t> taken_;  // in lower case, with how often it was wished for
};

}  // namespace localize_po
