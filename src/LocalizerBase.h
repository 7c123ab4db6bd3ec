// What all localizers do alike: the operations on strings, and reporting.
#pragma once

#include <boost/shared_ptr.hpp>
#include <memory>
#include <optional>
#include <string>

#include "CriticalSection.h"
#include "Engine.h"
#include "IParamResolver.h"
#include "IStringProvider.h"
#include "LazyStringProvider.h"
#include "localization_manager/Culture.h"
#include "localization_manager/IErrorListener.h"
#include "localization_manager/ILocalizer.h"
#include "qor/InterfaceList.h"
#include "qor/objptr_t.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace localization_manager {

class LocalizerBase : public ILocalizer, public qor::ObjectRoot {
public:
    using Interfaces = qor::InterfaceList<ILocalizer>;
    using ObjectRoot::ObjectRoot;

    qor::result_t HasString(const qor::string16_t& key) override;
    qor::result_t GetResolvedString(const qor::string16_t& key, qor::string16_t& result,
                                    IResolveListener* listener) override;

protected:
    using EngineParamResolver = engine::Resolving::IParamResolver;
    using StringProvider = LazyStringProvider::StringProvider;

    ~LocalizerBase() = default;

    /// Called once, by the `Init` of the derived class.
    void Init(const qor::string16_t& scope, const Culture& culture,
              boost::shared_ptr<EngineParamResolver> paramResolver,
              qor::objptr_t<IErrorListener> errorListener);

    /// Builds the pipeline; runs under `BuildLock`.
    virtual std::unique_ptr<StringProvider> BuildPipeline(
        const boost::shared_ptr<EngineParamResolver>& paramResolver) = 0;
    virtual qor::CriticalSection& BuildLock() = 0;

    /// Reports that something could not be done for a key.
    void ReportError(const char* what, std::u16string_view key, const std::exception& failure);

    const std::u16string& scope() const noexcept { return scope_; }
    const Culture& culture() const noexcept { return *culture_; }

private:
    /// Null when the pipeline cannot be built, which is then reported.
    StringProvider* EnsureStringProvider() {
        StringProvider* const provider = stringProvider_.Get();
        return provider != nullptr ? provider : BuildStringProvider();
    }
    StringProvider* BuildStringProvider();

    LazyStringProvider stringProvider_;
    std::u16string scope_;
    std::optional<Culture> culture_;  // constructed, so that its strings keep their allocators
    boost::shared_ptr<EngineParamResolver> paramResolver_;  // until the pipeline holds it
    qor::objptr_t<IErrorListener> errorListener_;
};

}  // namespace localization_manager
