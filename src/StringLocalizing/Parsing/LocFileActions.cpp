#include "LocFileActions.h"

#include "DuplicateKeyException.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void LocFileActions::BeginEntry(const Range& key) {
    LowerCase(key, key_);
    value_.Clear();
}

void LocFileActions::AddEntry() {
    if (!dictionary_.Add(key_, value_)) {
        throw DuplicateKeyException(key_);
    }
}

void LocFileActions::AddKeyRef(const Range& key) {
    LowerCase(key, referenced_);
    value_.AppendKeyRef(referenced_);
}

void LocFileActions::LowerCase(const Range& key, std::u16string& lower) const {
    lower.assign(key.begin(), key.end());
    lowerCase_.Map(lower, lower.data());
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
