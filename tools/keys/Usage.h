// Which keys the sources of a program use.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "keys/Language.h"
#include "keys/ScopeKeys.h"
#include "source/KeyCase.h"

namespace lm_keys {

class Usage {
public:
    /// A key of a source that nothing uses.
    struct Unused {
        const std::string* scope;
        const Key* key;
    };

    /// A literal that no text has for its key, though it begins as other keys do.
    struct Unknown {
        std::string file;
        lm_source::Place place;
        std::string literal;
    };

    /// @param scopes   have to live as long as this.
    /// @param ignored  patterns of keys that are not judged, in any letter case.
    Usage(const std::vector<ScopeKeys>& scopes, const std::vector<std::string>& ignored);

    /// A string literal that is a key uses it, and so does the name that `localize keys` gives it, behind ".", "->"
    /// or "::". What that command has made is left out.
    /// @param file    for messages.
    /// @throws std::runtime_error for a source of 2 GiB and more.
    void Read(const std::string& file, std::string_view source, Language language);

    /// Keys that no source uses, nor any text that is used, nor are variants of one that is. In the order of the
    /// scopes, and of their files.
    std::vector<Unused> FindUnused() const;

    /// In the order in which they were read.
    const std::vector<Unknown>& Unknowns() const noexcept { return unknowns_; }

private:
    bool IsIgnored(std::string_view lower) const;
    bool Use(const std::string& lower);

    const std::vector<ScopeKeys>& scopes_;
    lm_source::KeyCase case_;
    std::vector<std::string> ignored_;
    std::map<std::string, std::vector<const Key*>, std::less<>> keys_;   // of all scopes
    std::map<std::string, std::set<std::string>, std::less<>> members_;  // keys by their names
    std::set<std::string, std::less<>> families_;  // what stands before the last dot of a key
    std::set<std::string, std::less<>> used_;
    std::vector<Unknown> unknowns_;
};

}  // namespace lm_keys
