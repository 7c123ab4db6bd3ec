#include "check/NameSets.h"

#include <algorithm>
#include <iterator>

namespace lm_check {

NameSets::NameSets(const NameSets* parent)
    : parent_(parent),
      firstName_(parent != nullptr ? parent->NameCount() : 0),
      firstSet_(parent != nullptr ? parent->firstSet_ + static_cast<Set>(parent->members_.size())
                                  : 0) {
    if (parent_ == nullptr) {
        SetOf({});
    }
}

const NameSets::Name* NameSets::FindName(std::string_view text) const {
    const auto found = names_.find(text);
    if (found != names_.end()) {
        return &found->second;
    }
    return parent_ != nullptr ? parent_->FindName(text) : nullptr;
}

const NameSets::Set* NameSets::FindSet(const Members& members) const {
    const auto found = sets_.find(members);
    if (found != sets_.end()) {
        return &found->second;
    }
    return parent_ != nullptr ? parent_->FindSet(members) : nullptr;
}

NameSets::Name NameSets::NameOf(std::string_view text) {
    if (const Name* found = FindName(text)) {
        return *found;
    }
    const auto added = names_.emplace(std::string(text), NameCount()).first;
    texts_.push_back(&added->first);
    return added->second;
}

const std::string& NameSets::TextOf(Name name) const {
    return name < firstName_ ? parent_->TextOf(name) : *texts_[name - firstName_];
}

NameSets::Set NameSets::SetOf(Members members) {
    std::sort(members.begin(), members.end());
    members.erase(std::unique(members.begin(), members.end()), members.end());
    if (const Set* found = FindSet(members)) {
        return *found;
    }
    const Set number = firstSet_ + static_cast<Set>(members_.size());
    const auto added = sets_.emplace(std::move(members), number).first;
    members_.push_back(&added->first);
    return number;
}

const NameSets::Members& NameSets::MembersOf(Set set) const {
    return set < firstSet_ ? parent_->MembersOf(set) : *members_[set - firstSet_];
}

NameSets::Set NameSets::Union(Set left, Set right) {
    if (left == right || right == kEmpty) {
        return left;
    }
    if (left == kEmpty) {
        return right;
    }
    Members both;
    const Members& first = MembersOf(left);
    const Members& second = MembersOf(right);
    std::set_union(first.begin(), first.end(), second.begin(), second.end(),
                   std::back_inserter(both));
    return SetOf(std::move(both));
}

}  // namespace lm_check
