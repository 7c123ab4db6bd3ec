#include "ResourceCompiler.h"

#include <algorithm>
#include <boost/current_function.hpp>
#include <set>
#include <string>
#include <utility>

#include "CyclicReferenceException.h"
#include "ExpansionLimitException.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Compiling {

using Model::OperandKind;
using Model::OperandView;
using Model::ValueView;

namespace {

/// Whether compiling would change the value: a reference to inline, or texts to merge. It tells
/// compiled values from others, so that no record of them is kept.
bool NeedsCompiling(ValueView value) {
    bool followsText = false;
    return std::any_of(value.begin(), value.end(), [&](const OperandView& operand) {
        const bool isText = operand.kind == OperandKind::Text;
        const bool joinsText = followsText && isText;
        followsText = isText;
        return operand.kind == OperandKind::KeyRef || joinsText;
    });
}

/// What an operand counts towards the limits of expansion: its units, and one for itself.
std::size_t ExpandedSize(const OperandView& operand) {
    std::size_t size = 1 + operand.text.size();
    ForEachForm(operand, [&size](ValueView form) {
        for (const OperandView& inner : form) {
            size += ExpandedSize(inner);
        }
    });
    return size;
}

}  // namespace

ResourceCompiler::ResourceCompiler(boost::shared_ptr<IExpressionProvider> parentExpressionProvider)
    : parent_(std::move(parentExpressionProvider)) {
    code_contracts::RequireNotNull(
        parent_, {"parentExpressionProvider", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
}

void ResourceCompiler::Compile(boost::shared_ptr<Model::ResourceDictionary> resourceDictionary) {
    code_contracts::RequireNotNull(
        resourceDictionary, {"resourceDictionary", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    dictionary_ = std::move(resourceDictionary);
    if (dictionary_->IsCompiled()) {
        return;
    }
    expandedSize_ = dictionary_->ExpandedSize();  // of an attempt before, too
    // The order decides which fault of several is found, and what counts towards a limit first.
    std::set<std::u16string> keys;
    dictionary_->ForEach([&](Position entry) {
        const auto [key, value] = dictionary_->At(entry);
        if (NeedsCompiling(value)) {
            keys.emplace(key);
        }
    });
    for (const std::u16string& key : keys) {
        CompileKey(key);
    }
    dictionary_->SetCompiled();
}

ValueView ResourceCompiler::GetExpression(std::u16string_view key) {
    const auto found = dictionary_->Find(key);
    return found ? dictionary_->At(*found).value : parent_->GetExpression(key);
}

void ResourceCompiler::CompileKey(std::u16string_view key) {
    const Position entry = *dictionary_->Find(key);
    if (!NeedsCompiling(dictionary_->At(entry).value)) {
        return;
    }
    try {
        Begin(entry);
        while (!visits_.empty()) {
            Step();
        }
    } catch (...) {
        visits_.clear();
        visiting_.clear();
        throw;
    }
}

void ResourceCompiler::Begin(Position entry) {
    visiting_.insert(entry);
    visits_.push_back({entry});
}

/// Handles the next operand of the innermost entry.
void ResourceCompiler::Step() {
    Visit& visit = visits_.back();
    const std::u16string_view code = dictionary_->At(visit.entry).value.code();
    if (visit.done == code.size()) {
        Finish();
        return;
    }
    const OperandView operand = *ValueView(code.substr(visit.done)).begin();
    if (operand.kind != OperandKind::KeyRef) {
        Append(operand);
    } else if (!AppendReferenced(operand.text)) {
        return;
    }
    visit.done += operand.code.size();
}

void ResourceCompiler::Finish() {
    const Visit& visit = visits_.back();
    dictionary_->Replace(visit.entry, visit.output, visit.outputSize);
    visiting_.erase(visit.entry);
    visits_.pop_back();
}

/// Inlines a referenced key whose value is compiled; otherwise begins to compile it, and the
/// innermost entry meets the same reference again when that is done.
/// @return whether it was inlined.
bool ResourceCompiler::AppendReferenced(std::u16string_view key) {
    const auto found = dictionary_->Find(key);
    if (!found) {
        AppendAll(parent_->GetExpression(key));
        return true;
    }
    if (visiting_.count(*found) != 0) {
        ThrowCycle(key);
    }
    const ValueView value = dictionary_->At(*found).value;
    if (NeedsCompiling(value)) {
        Begin(*found);
        return false;
    }
    AppendAll(value);
    return true;
}

/// Appends an operand that is no reference to the innermost entry; a text joins a text before it.
void ResourceCompiler::Append(const OperandView& operand) {
    Visit& visit = visits_.back();
    const std::size_t size = ExpandedSize(operand);
    visit.outputSize += size;
    expandedSize_ += size;
    const std::u16string_view key = dictionary_->At(visit.entry).key;
    if (visit.outputSize > kMaxExpandedValue) {
        throw ExpansionLimitException(key, kMaxExpandedValue);
    }
    if (expandedSize_ > kMaxExpandedDictionary) {
        throw ExpansionLimitException(key, kMaxExpandedDictionary);
    }
    visit.output.Join(operand);
}

void ResourceCompiler::AppendAll(ValueView value) {
    for (const OperandView& operand : value) {
        Append(operand);
    }
}

void ResourceCompiler::ThrowCycle(std::u16string_view key) const {
    std::u16string chain;
    for (const Visit& visit : visits_) {
        const std::u16string_view visited = dictionary_->At(visit.entry).key;
        chain.append(visited == key ? u"(" : u"").append(visited).append(u"->");
    }
    throw CyclicReferenceException(chain.append(key) + u")");
}

}  // namespace LocalizationManager::StringLocalizing::Compiling
