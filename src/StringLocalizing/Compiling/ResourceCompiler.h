// Inlines key references, so that no value of a dictionary holds one any more.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>
#include <unordered_set>
#include <vector>

#include "IExpressionProvider.h"
#include "ResourceDictionary.h"

namespace LocalizationManager::StringLocalizing::Compiling {

/// Looks a key up in its own dictionary first, then asks its parent. Used by one thread.
class ResourceCompiler : public IExpressionProvider {
public:
    explicit ResourceCompiler(boost::shared_ptr<IExpressionProvider> parentExpressionProvider);
    ResourceCompiler(const ResourceCompiler&) = delete;
    ResourceCompiler& operator=(const ResourceCompiler&) = delete;

    /// Rewrites the values of the dictionary in place. A value that is compiled already is not
    /// written to, so that to compile a dictionary again only reads it.
    /// @throws CyclicReferenceException; KeyNotFoundException; ExpansionLimitException; what the
    ///         parent throws. Values that were not finished keep their operands.
    void Compile(boost::shared_ptr<Model::ResourceDictionary> resourceDictionary);

    /// For a child compiler, once `Compile` has run.
    void GetExpression(const std::u16string& key, std::vector<Model::Operand>& operands) override;

private:
    using Entry = Model::ResourceDictionary::value_type;

    /// An entry whose compilation is in progress.
    struct Visit {
        Entry* entry;
        std::size_t nextOperand = 0;
        std::vector<Model::Operand> output{};
        std::size_t outputSize = 0;
    };

    void CompileKey(Entry& entry);
    void Begin(Entry& entry);
    void Step();
    void Finish();
    void AppendReferenced(const std::u16string& key);
    void Append(const Model::Operand& operand);
    void AppendAll(const std::vector<Model::Operand>& operands);
    [[noreturn]] void ThrowCycle(const std::u16string& key) const;

    boost::shared_ptr<IExpressionProvider> parent_;
    boost::shared_ptr<Model::ResourceDictionary> dictionary_;
    // A stack of its own, not the thread's: chains of references may be as long as the dictionary.
    std::vector<Visit> visits_;
    std::unordered_set<const Entry*> visiting_;
    std::size_t expandedSize_ = 0;  // of all values that were rewritten
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
