#include "keys/Usage.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "keys/WordScanner.h"
#include "keys/cpp_header.h"
#include "keys/glob.h"
#include "keys/identifier.h"
#include "source/variant_key.h"
#include "tree/ascii_case.h"

namespace lm_keys {

namespace {

/// What a key has in common with its family; empty for a key that has none.
std::string_view FamilyOf(std::string_view key) {
    const std::size_t dot = key.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : key.substr(0, dot);
}

}  // namespace

Usage::Usage(const std::vector<ScopeKeys>& scopes, const std::vector<std::string>& ignored)
    : scopes_(scopes) {
    for (const std::string& pattern : ignored) {
        ignored_.push_back(lm_tree::LowerAscii(pattern));
    }
    for (const ScopeKeys& scope : scopes) {
        for (const Key& key : scope.keys) {
            keys_[key.lower].push_back(&key);
            members_[IdentifierOf(key.name)].insert(key.lower);
            families_.emplace(FamilyOf(key.lower));
        }
    }
    families_.erase("");
}

bool Usage::IsIgnored(std::string_view lower) const {
    return std::any_of(ignored_.begin(), ignored_.end(),
                       [&](const std::string& pattern) { return MatchesGlob(pattern, lower); });
}

bool Usage::Use(const std::string& lower) {
    const bool isKnown = keys_.count(lower) != 0;
    if (isKnown) {
        used_.insert(lower);
    }
    return isKnown;
}

void Usage::Read(const std::string& file, std::string_view source, Language language) {
    if (source.size() > std::numeric_limits<std::int32_t>::max()) {
        throw std::runtime_error("'" + file + "' is too large for the source of a program");
    }
    if (source.substr(0, kHeaderMark.size()) == kHeaderMark) {
        return;
    }
    const lm_source::LineTable lines(source, {0, static_cast<std::uint32_t>(source.size())});
    for (const Word& word : WordScanner(source, language).Scan()) {
        if (!word.isLiteral) {
            const auto member = members_.find(word.text);
            if (member != members_.end()) {
                used_.insert(member->second.begin(), member->second.end());
            }
            continue;
        }
        const std::string lower = case_.Lower(word.text);
        const bool isKnown = Use(lower) || Use(std::string(lm_source::BaseOfVariant(lower)));
        if (!isKnown && families_.count(FamilyOf(lower)) != 0 && !IsIgnored(lower)) {
            const auto at = static_cast<std::uint32_t>(word.text.data() - source.data());
            unknowns_.push_back({file, lines.PlaceOf(source, at), std::string(word.text)});
        }
    }
}

std::vector<Usage::Unused> Usage::FindUnused() const {
    auto used = used_;
    std::vector<std::string> open(used.begin(), used.end());
    const auto use = [&](const std::string& lower) {
        if (used.insert(lower).second) {
            open.push_back(lower);
        }
    };
    for (const auto& [lower, keys] : keys_) {  // the program asks for them in its own way
        if (IsIgnored(lower)) {
            use(lower);
        }
    }
    while (!open.empty()) {
        const std::string lower = std::move(open.back());
        open.pop_back();
        const auto keys = keys_.find(lower);
        if (keys == keys_.end()) {
            continue;
        }
        for (const Key* const key : keys->second) {
            std::for_each(key->references.begin(), key->references.end(), use);
        }
        for (auto next = keys_.upper_bound(lower);
             next != keys_.end() && next->first.compare(0, lower.size(), lower) == 0; ++next) {
            if (lm_source::BaseOfVariant(next->first) == lower) {
                use(next->first);
            }
        }
    }
    std::vector<Unused> unused;
    for (const ScopeKeys& scope : scopes_) {
        const auto first = static_cast<std::ptrdiff_t>(unused.size());
        for (const Key& key : scope.keys) {
            if (used.count(key.lower) == 0) {
                unused.push_back({&scope.scope, &key});
            }
        }
        std::sort(unused.begin() + first, unused.end(),
                  [](const Unused& left, const Unused& right) {
                      return std::pair(left.key->place.line, left.key->place.column) <
                             std::pair(right.key->place.line, right.key->place.column);
                  });
    }
    return unused;
}

}  // namespace lm_keys
