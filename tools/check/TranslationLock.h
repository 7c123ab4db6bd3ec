// Which reference text each translation was made from.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace lm_check {

/// The file `localize.lock` at the root of a tree: lines "directory/scope key hash", sorted, so that
/// version control merges them. A translation that it does not name has never been accepted.
class TranslationLock {
public:
    static constexpr const char* kFileName = "localize.lock";

    using Hash = std::uint64_t;

    TranslationLock() = default;

    /// @throws std::invalid_argument with the number of the line that cannot be read.
    explicit TranslationLock(std::string_view text);

    std::string Text() const;

    /// @param source  "directory/scope".
    /// @param key     in lower case.
    std::optional<Hash> Find(std::string_view source, std::string_view key) const;

    void Set(std::string_view source, std::string_view key, Hash hash);

    /// Forgets the keys of a source that `keep` does not name.
    template <class Keep>
    void Prune(std::string_view source, Keep keep) {
        const auto found = hashes_.find(source);
        if (found == hashes_.end()) {
            return;
        }
        for (auto entry = found->second.begin(); entry != found->second.end();) {
            entry = keep(entry->first) ? std::next(entry) : found->second.erase(entry);
        }
    }

    /// Forgets all sources that are not among these.
    void Retain(const std::set<std::string>& sources);

    bool empty() const noexcept { return hashes_.empty(); }

private:
    std::map<std::string, std::map<std::string, Hash, std::less<>>, std::less<>> hashes_;
};

}  // namespace lm_check
