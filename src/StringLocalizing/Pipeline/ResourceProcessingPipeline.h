// The pipeline of a localizer over files, which shares its common texts with others.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>

#include "ProcessingPipeline.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

class ResourceProcessingPipeline : public ProcessingPipeline {
public:
    /// @param commonResourceDictionary  filled from `commonResourceName` while it is empty, and
    ///        compiled if it is not yet. A mistake in the source leaves the entries before it in
    ///        place; any other failure to load leaves it empty. The caller keeps other pipelines
    ///        from being built over it at the same time. Finished pipelines read it without a lock:
    ///        what is compiled is not written again, and a dictionary that stays empty is not kept.
    /// @param resourceName              the scope.
    ResourceProcessingPipeline(
        const boost::shared_ptr<IResourceProvider>& resourceProvider,
        const boost::shared_ptr<Resolving::IParamResolver>& paramResolver,
        const boost::shared_ptr<Model::ResourceDictionary>& commonResourceDictionary,
        const localization_manager::Culture& culture, const std::u16string& resourceName,
        const std::u16string& commonResourceName);
};

}  // namespace LocalizationManager::StringLocalizing::Pipeline
