// The localizer over files.
#pragma once

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>

#include "CriticalSection.h"
#include "Engine.h"
#include "IResourceProvider.h"
#include "LocalizerBase.h"
#include "ResourceDictionary.h"
#include "localization_manager/IParamResolver.h"

namespace localization_manager {

/// Shares the common texts of its culture, and the lock that guards their making, with the other
/// localizers of that culture.
class Localizer : public LocalizerBase {
public:
    using ResourceProvider = engine::Pipeline::IResourceProvider;
    using Dictionary = engine::Model::ResourceDictionary;
    using LocalizerBase::LocalizerBase;

    /// Called once, before the localizer is handed out.
    /// @param paramResolver  may be null.
    /// @throws a contract exception when anything else is null.
    void Init(const boost::shared_ptr<ResourceProvider>& resourceProvider,
              const boost::shared_ptr<Dictionary>& commonResourceDictionary,
              const boost::shared_ptr<qor::CriticalSection>& commonResourceDictionarySyncObject,
              const qor::string16_t& scope, const Culture& culture, IParamResolver* paramResolver,
              qor::objptr_t<IErrorListener> errorListener);

    qor::result_t GetString(const qor::string16_t& key, qor::string16_t& result) override;
    qor::result_t GetStream(const qor::string16_t& key, qor::IIO** stream) override;
    qor::result_t HasResource(const qor::string16_t& key) override;
    qor::result_t GetPath(const qor::string16_t& key, qor::string16_t& path) override;

protected:
    ~Localizer() = default;

    std::unique_ptr<StringProvider> BuildPipeline(
        const boost::shared_ptr<EngineParamResolver>& paramResolver) override;
    qor::CriticalSection& BuildLock() override;

private:
    class ParamResolverWrapper;

    /// Empty when no culture directory has the file.
    std::u16string FindResource(const qor::string16_t& key);

    boost::shared_ptr<ResourceProvider> resourceProvider_;
    boost::shared_ptr<Dictionary> commonResourceDictionary_;
    boost::shared_ptr<qor::CriticalSection> commonResourceDictionarySyncObject_;
};

}  // namespace localization_manager
