// The pipeline of a localizer over texts in memory, which has its common texts for itself.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>

#include "ProcessingPipeline.h"

namespace LocalizationManager::StringLocalizing::Pipeline {

class BufferProcessingPipeline : public ProcessingPipeline {
public:
    /// @param resourceName  the scope.
    BufferProcessingPipeline(const boost::shared_ptr<IResourceProvider>& resourceProvider,
                             const boost::shared_ptr<Resolving::IParamResolver>& paramResolver,
                             const localization_manager::Culture& culture,
                             const std::u16string& resourceName,
                             const std::u16string& commonResourceName);
};

}  // namespace LocalizationManager::StringLocalizing::Pipeline
