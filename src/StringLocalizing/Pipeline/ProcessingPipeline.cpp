#include "ProcessingPipeline.h"

#include <boost/current_function.hpp>
#include <boost/make_shared.hpp>
#include <utility>

#include "KeyResolver.h"
#include "LocFileParser.h"
#include "PluralFormRules.h"
#include "PluralFormRulesParser.h"
#include "PluralResolver.h"
#include "ResourceCompiler.h"
#include "RootExpressionProvider.h"
#include "RootStringProvider.h"
#include "SourceIterator.h"
#include "StringProvider.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

using localization_manager::Culture;

namespace {

boost::shared_ptr<Model::IPluralFormRules> LoadPluralRules(
    const IResourceProvider& resourceProvider, const Model::PluralFormRuleId& id) {
    if (!resourceProvider.HasPluralFormRules(id)) {
        return Model::CreatePluralFormRules();
    }
    const ResourceContent source = resourceProvider.GetPluralFormRules(id);
    Model::PluralFormRule rule;
    const auto range = Parsing::MakeSourceRange(source.content, source.sourceName);
    Parsing::ParsePluralFormRules(range.first, range.last, rule);
    return Model::CreatePluralFormRules(id, rule);
}

}  // namespace

ProcessingPipeline::ProcessingPipeline(
    const ResourceProviderPointer& resourceProvider,
    const boost::shared_ptr<Resolving::IParamResolver>& paramResolver, const Culture& culture)
    : paramResolver_(paramResolver) {
    code_contracts::RequireNotNull(paramResolver_,
                                   {"paramResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    const Model::PluralFormRuleId ruleId(culture);
    pluralResolver_ = boost::make_shared<Resolving::PluralResolver>(
        paramResolver_, ruleId, LoadPluralRules(*resourceProvider, ruleId));
}

void ProcessingPipeline::GetString(std::u16string_view key, Resolving::IResolveListener* listener,
                                   Resolving::ResolvedText& output) {
    stringProvider_->GetString(key, listener, output);
}

bool ProcessingPipeline::HasString(std::u16string_view key) {
    return stringProvider_->HasString(key);
}

void ProcessingPipeline::LoadDictionary(const ResourceProviderPointer& resourceProvider,
                                        const Culture& culture, const std::u16string& name,
                                        Model::ResourceDictionary& dictionary) {
    const ResourceContent source = resourceProvider->GetResource(name, culture);
    const auto range = Parsing::MakeSourceRange(source.content, source.sourceName);
    Parsing::ParseResourceDictionary(range.first, range.last, dictionary);
}

void ProcessingPipeline::Build(const ResourceProviderPointer& resourceProvider,
                               const Culture& culture, const std::u16string& resourceName,
                               DictionaryPointer commonResourceDictionary,
                               const std::u16string& commonResourceName) {
    commonResourceDictionary_ = std::move(commonResourceDictionary);
    resourceDictionary_ = boost::make_shared<Model::ResourceDictionary>();
    LoadDictionary(resourceProvider, culture, resourceName, *resourceDictionary_);
    Compile();
    Chain(resourceName, commonResourceName);
}

void ProcessingPipeline::Compile() {
    const auto commonCompiler = boost::make_shared<Compiling::ResourceCompiler>(
        boost::make_shared<Compiling::RootExpressionProvider>());
    commonCompiler->Compile(commonResourceDictionary_);
    Compiling::ResourceCompiler(commonCompiler).Compile(resourceDictionary_);
}

void ProcessingPipeline::Chain(const std::u16string& resourceName,
                               const std::u16string& commonResourceName) {
    const auto keyResolver =
        boost::make_shared<Resolving::KeyResolver>(paramResolver_, pluralResolver_);
    const auto root = boost::make_shared<Resolving::RootStringProvider>(
        keyResolver, commonResourceDictionary_, commonResourceName);
    stringProvider_ = boost::make_shared<Resolving::StringProvider>(
        keyResolver, resourceDictionary_, root, resourceName);
}

}  // namespace LocalizationManager::StringLocalizing::Pipeline
