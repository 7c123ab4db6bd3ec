// A language as systems and standards name it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace localization_manager::host {

/// Reads BCP 47 ("zh-Hant-TW") and the names of POSIX locales ("sr_RS.UTF-8@latin"), in any letter case.
/// Extensions, private subtags, encodings and other modifiers are left out. Of what is neither, nothing is read.
struct LanguageTag {
    std::string language;  // lower case, as are region and variant; empty for none, as of "C"
    std::string script;    // "Hant"
    std::string region;
    std::string variant;

    explicit LanguageTag(std::string_view text) {
        const std::size_t at = text.find('@');
        const std::string_view modifier =
            at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
        std::string_view rest = text.substr(0, std::min(at, text.find('.')));
        language = Take(rest);
        if (language.size() < 2 || language.size() > 3 || !HasOnlyLetters(language)) {
            language.clear();
            return;
        }
        for (std::string part = Take(rest); part.size() > 1; part = Take(rest)) {
            if (part.size() == 4 && HasOnlyLetters(part) && region.empty()) {
                script = Capitalised(part);
            } else if ((part.size() == 2 && HasOnlyLetters(part)) || IsAreaCode(part)) {
                region = part;
            } else if (part.size() >= 4) {
                variant = part;
            }
        }
        if (modifier == "latin" || modifier == "cyrillic") {
            script = modifier == "latin" ? "Latn" : "Cyrl";
        }
    }

    /// The language with the script, as directories are named that hold texts for all regions.
    std::string Language() const { return script.empty() ? language : language + '-' + script; }

private:
    static char Lower(char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }

    /// Takes the first part off the front, in lower case; empty at the end.
    static std::string Take(std::string_view& rest) {
        const std::size_t end = std::min(rest.find_first_of("-_"), rest.size());
        std::string part(rest.substr(0, end));
        std::transform(part.begin(), part.end(), part.begin(), Lower);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return part;
    }

    static bool HasOnlyLetters(std::string_view part) {
        return std::all_of(part.begin(), part.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    }

    /// "419" for Latin America.
    static bool IsAreaCode(std::string_view part) {
        return part.size() == 3 &&
               std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
    }

    static std::string Capitalised(std::string part) {
        part[0] = static_cast<char>(part[0] - 'a' + 'A');
        return part;
    }
};

}  // namespace localization_manager::host
