// Sets of parameters, by number.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lm_check {

/// Gives every name and every set of names a number; a tree has few different ones. A child knows
/// the numbers of its parent, which must not grow meanwhile, and adds its own behind them.
class NameSets {
public:
    using Name = std::uint32_t;
    using Set = std::uint32_t;
    using Members = std::vector<Name>;  // ordered

    static constexpr Set kEmpty = 0;

    explicit NameSets(const NameSets* parent = nullptr);

    Name NameOf(std::string_view text);
    const std::string& TextOf(Name name) const;

    Set SetOf(Members members);
    const Members& MembersOf(Set set) const;
    Set Union(Set left, Set right);

    /// How many names there are, those of the parent included.
    Name NameCount() const noexcept { return firstName_ + static_cast<Name>(texts_.size()); }

private:
    const Name* FindName(std::string_view text) const;
    const Set* FindSet(const Members& members) const;

    const NameSets* parent_;
    Name firstName_;
    Set firstSet_;
    std::map<std::string, Name, std::less<>> names_;
    std::vector<const std::string*> texts_;
    std::map<Members, Set> sets_;
    std::vector<const Members*> members_;
};

}  // namespace lm_check
