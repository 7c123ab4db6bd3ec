#include "ResourceCompiler.h"

#include <algorithm>
#include <boost/current_function.hpp>
#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/get.hpp>
#include <boost/variant/static_visitor.hpp>
#include <utility>

#include "CyclicReferenceException.h"
#include "ExpansionLimitException.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Compiling {

using Model::KeyRef;
using Model::Operand;

namespace {

using Operands = std::vector<Operand>;

bool IsText(const Operand& operand) {
    return boost::get<std::u16string>(&operand) != nullptr;
}

/// Whether compiling would change the operands: a reference to inline, or texts to merge. It tells
/// compiled values from others, so that no record of them is kept.
bool NeedsCompiling(const Operands& operands) {
    const auto isRef = [](const Operand& operand) {
        return boost::get<KeyRef>(&operand) != nullptr;
    };
    const auto areTexts = [](const Operand& left, const Operand& right) {
        return IsText(left) && IsText(right);
    };
    return std::any_of(operands.begin(), operands.end(), isRef) ||
           std::adjacent_find(operands.begin(), operands.end(), areTexts) != operands.end();
}

/// What an operand counts towards the limits of expansion: its units, and one for itself.
class ExpandedSize : public boost::static_visitor<std::size_t> {
public:
    std::size_t operator()(const std::u16string& text) const { return 1 + text.size(); }
    std::size_t operator()(const KeyRef& ref) const { return 1 + ref.key.size(); }
    std::size_t operator()(const Model::Param& param) const { return 1 + param.name.size(); }

    std::size_t operator()(const Model::PluralForm& pluralForm) const {
        std::size_t size = 1 + pluralForm.paramName.size();
        for (const Model::Value& form : pluralForm.forms) {
            for (const Operand& operand : form.operands) {
                size += boost::apply_visitor(*this, operand);
            }
        }
        return size;
    }
};

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
    expandedSize_ = 0;
    for (Entry& entry : *dictionary_) {
        CompileKey(entry);
    }
}

void ResourceCompiler::GetExpression(const std::u16string& key, Operands& operands) {
    const auto found = dictionary_->find(key);
    if (found == dictionary_->end()) {
        parent_->GetExpression(key, operands);
        return;
    }
    CompileKey(*found);
    operands = found->second.operands;
}

void ResourceCompiler::CompileKey(Entry& entry) {
    if (!NeedsCompiling(entry.second.operands)) {
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

void ResourceCompiler::Begin(Entry& entry) {
    visiting_.insert(&entry);
    visits_.push_back({&entry});
}

/// Handles the next operand of the innermost entry.
void ResourceCompiler::Step() {
    Visit& visit = visits_.back();
    const Operands& operands = visit.entry->second.operands;
    if (visit.nextOperand == operands.size()) {
        Finish();
    } else if (const auto* ref = boost::get<KeyRef>(&operands[visit.nextOperand])) {
        AppendReferenced(ref->key);
    } else {
        Append(operands[visit.nextOperand++]);
    }
}

void ResourceCompiler::Finish() {
    Visit& visit = visits_.back();
    visit.entry->second.operands.swap(visit.output);
    visiting_.erase(visit.entry);
    visits_.pop_back();
}

/// Inlines a referenced key whose value is compiled; otherwise begins to compile it, and the
/// innermost entry meets the same reference again when that is done.
void ResourceCompiler::AppendReferenced(const std::u16string& key) {
    Visit& visit = visits_.back();
    const auto found = dictionary_->find(key);
    if (found == dictionary_->end()) {
        Operands inherited;
        parent_->GetExpression(key, inherited);
        AppendAll(inherited);
        ++visit.nextOperand;
    } else if (visiting_.count(&*found) != 0) {
        ThrowCycle(key);
    } else if (NeedsCompiling(found->second.operands)) {
        Begin(*found);
    } else {
        AppendAll(found->second.operands);
        ++visit.nextOperand;
    }
}

/// Appends an operand that is no reference to the innermost entry; a text joins a text before it.
void ResourceCompiler::Append(const Operand& operand) {
    Visit& visit = visits_.back();
    const std::size_t size = boost::apply_visitor(ExpandedSize(), operand);
    visit.outputSize += size;
    expandedSize_ += size;
    if (visit.outputSize > kMaxExpandedValue) {
        throw ExpansionLimitException(visit.entry->first, kMaxExpandedValue);
    }
    if (expandedSize_ > kMaxExpandedDictionary) {
        throw ExpansionLimitException(visit.entry->first, kMaxExpandedDictionary);
    }
    const auto* const text = boost::get<std::u16string>(&operand);
    auto* const last =
        visit.output.empty() ? nullptr : boost::get<std::u16string>(&visit.output.back());
    if (text != nullptr && last != nullptr) {
        last->append(*text);
    } else {
        visit.output.push_back(operand);
    }
}

void ResourceCompiler::AppendAll(const Operands& operands) {
    for (const Operand& operand : operands) {
        Append(operand);
    }
}

void ResourceCompiler::ThrowCycle(const std::u16string& key) const {
    std::u16string chain;
    for (const Visit& visit : visits_) {
        if (visit.entry->first == key) {
            chain += u"(";
        }
        chain += visit.entry->first + u"->";
    }
    throw CyclicReferenceException(chain + key + u")");
}

}  // namespace LocalizationManager::StringLocalizing::Compiling
