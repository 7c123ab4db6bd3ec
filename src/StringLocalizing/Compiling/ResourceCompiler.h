// Inlines key references, so that no value of a dictionary holds one any more.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string_view>
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

    /// Rewrites the values of the dictionary that are not compiled yet. To compile a dictionary again
    /// writes nothing.
    /// @throws CyclicReferenceException; KeyNotFoundException; ExpansionLimitException; what the
    ///         parent throws. Values that were not finished keep their operands.
    void Compile(boost::shared_ptr<Model::ResourceDictionary> resourceDictionary);

    /// For a child compiler, once `Compile` has run.
    Model::ValueView GetExpression(std::u16string_view key) override;

private:
    using Position = Model::ResourceDictionary::Position;

    /// An entry whose compilation is in progress.
    struct Visit {
        Position entry;
        bool expands;          // whether its value refers to others
        std::size_t done = 0;  // units of the value's code
        Model::Value output{};
    };

    void CompileKey(std::u16string_view key);
    void Begin(Position entry);
    void Step();
    void Finish();
    bool AppendReferenced(std::u16string_view key);
    void Append(Model::ValueView compiled);
    [[noreturn]] void ThrowCycle(std::u16string_view key) const;

    boost::shared_ptr<IExpressionProvider> parent_;
    boost::shared_ptr<Model::ResourceDictionary> dictionary_;
    // A stack of its own, not the thread's: chains of references may be as long as the dictionary.
    std::vector<Visit> visits_;
    std::unordered_set<Position> visiting_;
    std::size_t expandedSize_ = 0;  // of all values that referred to others
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
