#include "ResourceCompiler.h"

#include <algorithm>
#include <boost/current_function.hpp>
#include <utility>

#include "CyclicReferenceException.h"
#include "ExpansionLimitException.h"
#include "expansion_limits.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Compiling {

using Model::OperandKind;
using Model::OperandView;
using Model::ValueView;

namespace {

bool HasReference(ValueView value) {
    return std::any_of(value.begin(), value.end(), [](const OperandView& operand) {
        return operand.kind == OperandKind::KeyRef;
    });
}

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
    std::vector<Position> entries;
    dictionary_->ForEach([&](Position entry) {
        if (NeedsCompiling(dictionary_->At(entry).value)) {
            entries.push_back(entry);
        }
    });
    // The order decides which fault of several is found, and what counts towards a limit first.
    std::sort(entries.begin(), entries.end(), [this](Position left, Position right) {
        return dictionary_->At(left).key < dictionary_->At(right).key;
    });
    for (const Position entry : entries) {  // of those that were replaced, too, the key is there
        CompileKey(dictionary_->At(entry).key);
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
    visits_.push_back({entry, HasReference(dictionary_->At(entry).value)});
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
        Append(ValueView(operand.code));
    } else if (!AppendReferenced(operand.text)) {
        return;
    }
    visit.done += operand.code.size();
}

void ResourceCompiler::Finish() {
    const Visit& visit = visits_.back();
    dictionary_->Replace(visit.entry, visit.output, visit.expands ? visit.output.size() : 0);
    visiting_.erase(visit.entry);
    visits_.pop_back();
}

/// Inlines a referenced key whose value is compiled; otherwise begins to compile it, and the
/// innermost entry meets the same reference again when that is done.
/// @return whether it was inlined.
bool ResourceCompiler::AppendReferenced(std::u16string_view key) {
    const auto found = dictionary_->Find(key);
    if (!found) {
        Append(parent_->GetExpression(key));
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
    Append(value);
    return true;
}

/// Appends operands that are no references to the innermost entry.
void ResourceCompiler::Append(ValueView compiled) {
    Visit& visit = visits_.back();
    const std::size_t before = visit.output.size();
    visit.output.Join(compiled);
    if (!visit.expands) {
        return;
    }
    expandedSize_ += visit.output.size() - before;
    if (visit.output.size() > kMaxExpandedValue) {
        throw ExpansionLimitException(dictionary_->At(visit.entry).key, kMaxExpandedValue);
    }
    if (expandedSize_ > kMaxExpandedDictionary) {
        throw ExpansionLimitException(dictionary_->At(visit.entry).key, kMaxExpandedDictionary);
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
