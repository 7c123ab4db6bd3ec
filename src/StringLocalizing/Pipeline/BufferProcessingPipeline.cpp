#include "BufferProcessingPipeline.h"

#include <boost/make_shared.hpp>

namespace LocalizationManager::StringLocalizing::Pipeline {

BufferProcessingPipeline::BufferProcessingPipeline(
    const boost::shared_ptr<IResourceProvider>& resourceProvider,
    const boost::shared_ptr<Resolving::IParamResolver>& paramResolver,
    const localization_manager::Culture& culture, const std::u16string& resourceName,
    const std::u16string& commonResourceName)
    : ProcessingPipeline(resourceProvider, paramResolver, culture) {
    const auto common = boost::make_shared<Model::ResourceDictionary>();
    LoadDictionary(resourceProvider, culture, commonResourceName, *common);
    Build(resourceProvider, culture, resourceName, common, commonResourceName);
}

}  // namespace LocalizationManager::StringLocalizing::Pipeline
