#include "check/TranslationLock.h"

#include <charconv>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "check/for_each_line.h"

namespace lm_check {

TranslationLock::TranslationLock(std::string_view text) {
    ForEachLine(text, [this](const std::string& line, std::size_t number) {
        // A scope's name may hold blanks, so the line is read from its end.
        const std::size_t hashAt = line.rfind(' ');
        const std::size_t keyAt =
            hashAt == std::string::npos || hashAt == 0 ? hashAt : line.rfind(' ', hashAt - 1);
        Hash hash = 0;
        const char* const first = line.data() + hashAt + 1;
        const char* const last = line.data() + line.size();
        if (keyAt == std::string::npos || hashAt == std::string::npos || first == last ||
            std::from_chars(first, last, hash, 16).ptr != last) {
            throw std::invalid_argument(std::string(kFileName) + " line " + std::to_string(number) +
                                        " is not 'directory/scope key hash'");
        }
        Set(line.substr(0, keyAt), line.substr(keyAt + 1, hashAt - keyAt - 1), hash);
    });
}

std::string TranslationLock::Text() const {
    std::ostringstream text;
    text << std::hex;
    for (const auto& [source, keys] : hashes_) {
        for (const auto& [key, hash] : keys) {
            text << source << ' ' << key << ' ';
            text.width(16);
            text.fill('0');
            text << hash << '\n';
        }
    }
    return text.str();
}

std::optional<TranslationLock::Hash> TranslationLock::Find(std::string_view source,
                                                           std::string_view key) const {
    const auto keys = hashes_.find(source);
    if (keys == hashes_.end()) {
        return std::nullopt;
    }
    const auto found = keys->second.find(key);
    return found != keys->second.end() ? std::optional(found->second) : std::nullopt;
}

void TranslationLock::Retain(const std::set<std::string>& sources) {
    for (auto source = hashes_.begin(); source != hashes_.end();) {
        source = sources.count(source->first) != 0 ? std::next(source) : hashes_.erase(source);
    }
}

void TranslationLock::Set(std::string_view source, std::string_view key, Hash hash) {
    auto found = hashes_.find(source);
    if (found == hashes_.end()) {
        found = hashes_.try_emplace(std::string(source)).first;
    }
    found->second.insert_or_assign(std::string(key), hash);
}

}  // namespace lm_check
