#include "ResourceProcessingPipeline.h"

#include <boost/current_function.hpp>
#include <boost/make_shared.hpp>

#include "ParsingException.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

ResourceProcessingPipeline::ResourceProcessingPipeline(
    const boost::shared_ptr<IResourceProvider>& resourceProvider,
    const boost::shared_ptr<Resolving::IParamResolver>& paramResolver,
    const boost::shared_ptr<Model::ResourceDictionary>& commonResourceDictionary,
    const localization_manager::Culture& culture, const std::u16string& resourceName,
    const std::u16string& commonResourceName)
    : ProcessingPipeline(resourceProvider, paramResolver, culture) {
    code_contracts::RequireNotNull(
        commonResourceDictionary,
        {"commonResourceDictionary", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    if (commonResourceDictionary->empty()) {
        try {
            LoadDictionary(resourceProvider, culture, commonResourceName,
                           *commonResourceDictionary);
        } catch (const Parsing::ParsingException&) {  // what stands before a mistake is kept
            throw;
        } catch (...) {  // a half of the texts would pass for all of them from now on
            *commonResourceDictionary = {};
            throw;
        }
    }
    // A later pipeline may find a source that has texts by then and load it into the shared
    // dictionary. Whoever found nothing must not be reading it then.
    const auto kept = commonResourceDictionary->empty()
                          ? boost::make_shared<Model::ResourceDictionary>()
                          : commonResourceDictionary;
    Build(resourceProvider, culture, resourceName, kept, commonResourceName);
}

}  // namespace LocalizationManager::StringLocalizing::Pipeline
