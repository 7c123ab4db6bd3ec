// The localizer over texts in memory.
#pragma once

#include <boost/shared_ptr.hpp>
#include <memory>

#include "CriticalSection.h"
#include "IResourceProvider.h"
#include "LocalizerBase.h"
#include "localization_manager/IParamResolver.h"

namespace localization_manager {

/// Shares nothing with other localizers and serves strings only: `GetResolvedString` and
/// `HasString`.
class BufferLocalizer : public LocalizerBase {
public:
    using ResourceProvider = engine::Pipeline::IResourceProvider;
    using LocalizerBase::LocalizerBase;

    /// Called once, before the localizer is handed out.
    /// @param paramResolver  may be null.
    /// @throws a contract exception when anything else is null.
    void Init(const boost::shared_ptr<ResourceProvider>& resourceProvider,
              const qor::string16_t& scope, const Culture& culture, IParamResolver* paramResolver,
              qor::objptr_t<IErrorListener> errorListener);

    qor::result_t GetString(const qor::string16_t& key, qor::string16_t& result) override;
    qor::result_t GetStream(const qor::string16_t& key, qor::IIO** stream) override;
    qor::result_t HasResource(const qor::string16_t& key) override;
    qor::result_t GetPath(const qor::string16_t& key, qor::string16_t& path) override;

protected:
    ~BufferLocalizer() = default;

    std::unique_ptr<StringProvider> BuildPipeline(
        const boost::shared_ptr<EngineParamResolver>& paramResolver) override;
    qor::CriticalSection& BuildLock() override;

private:
    class ParamResolverWrapper;

    boost::shared_ptr<ResourceProvider> resourceProvider_;
    qor::CriticalSection buildLock_;
};

}  // namespace localization_manager
