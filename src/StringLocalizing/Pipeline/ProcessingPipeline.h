// What both processing pipelines do to turn sources into a chain of string providers.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>

#include "IParamResolver.h"
#include "IPluralResolver.h"
#include "IResourceProvider.h"
#include "IStringProvider.h"
#include "ResourceDictionary.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

/// Construction does all the work, in the order of the steps below, which the derived class runs;
/// any failure leaves the constructor. A finished pipeline only reads.
class ProcessingPipeline : public Resolving::IStringProvider {
public:
    ProcessingPipeline(const ProcessingPipeline&) = delete;
    ProcessingPipeline& operator=(const ProcessingPipeline&) = delete;

    void GetString(std::u16string_view key, Resolving::IResolveListener* listener,
                   Resolving::ResolvedText& output) override;
    bool HasString(std::u16string_view key) override;

protected:
    using ResourceProviderPointer = boost::shared_ptr<IResourceProvider>;
    using DictionaryPointer = boost::shared_ptr<Model::ResourceDictionary>;

    /// Loads the plural rules of the culture.
    ProcessingPipeline(const ResourceProviderPointer& resourceProvider,
                       const boost::shared_ptr<Resolving::IParamResolver>& paramResolver,
                       const localization_manager::Culture& culture);

    /// Parses a source into the dictionary, which keeps what was read before an error.
    static void LoadDictionary(const ResourceProviderPointer& resourceProvider,
                               const localization_manager::Culture& culture,
                               const std::u16string& name, Model::ResourceDictionary& dictionary);

    /// Loads the scope's source, compiles both dictionaries and chains the providers.
    void Build(const ResourceProviderPointer& resourceProvider,
               const localization_manager::Culture& culture, const std::u16string& resourceName,
               DictionaryPointer commonResourceDictionary,
               const std::u16string& commonResourceName);

private:
    void Compile();
    void Chain(const std::u16string& resourceName, const std::u16string& commonResourceName);

    boost::shared_ptr<Resolving::IParamResolver> paramResolver_;
    boost::shared_ptr<Resolving::IPluralResolver> pluralResolver_;
    DictionaryPointer resourceDictionary_;
    DictionaryPointer commonResourceDictionary_;
    boost::shared_ptr<Resolving::IStringProvider> stringProvider_;
};

}  // namespace LocalizationManager::StringLocalizing::Pipeline
