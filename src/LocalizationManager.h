// The object that a host creates through the module's factory.
#pragma once

#include <boost/shared_ptr.hpp>

#include "CommonDictionaryCache.h"
#include "Engine.h"
#include "IResourceProvider.h"
#include "localization_manager/IConstruct.h"
#include "localization_manager/ILocalizationManager.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace localization_manager {

class LocalizationManager : public ILocalizationManager, public IConstruct, public qor::ObjectRoot {
public:
    using Interfaces = qor::InterfaceList<ILocalizationManager, IConstruct>;
    using ObjectRoot::ObjectRoot;

    qor::result_t Init(const qor::string16_t& root, const qor::string16_t& alternative) override;
    qor::result_t CreateLocalizer(const qor::string16_t& scope, const Culture& culture,
                                  IParamResolver* paramResolver, ILocalizer** localizer) override;
    qor::result_t InitEx(const qor::string16_t& root, const qor::string16_t& alternative,
                         qor::objptr_t<IErrorListener> errorListener) override;
    qor::result_t CreateLocalizerFromBuffer(const qor::string16_t& buffer, const Culture& culture,
                                            IParamResolver* paramResolver,
                                            ILocalizer** localizer) override;
    qor::result_t CreateBufferLocalizer(const qor::string16_t& scopePrefix,
                                        const qor::string16_t& buffer,
                                        const qor::string16_t& commonBuffer, const Culture& culture,
                                        IParamResolver* paramResolver,
                                        ILocalizer** localizer) override;

    qor::result_t Construct(const LocalizationManagerSettings* settings) override;

protected:
    ~LocalizationManager() = default;

private:
    using ResourceProvider = engine::Pipeline::IResourceProvider;

    qor::result_t CreateLocalizer(const qor::string16_t& scope, const Culture& culture,
                                  const boost::shared_ptr<ResourceProvider>& resourceProvider,
                                  IParamResolver* paramResolver, ILocalizer** localizer);

    /// Takes the host's listener, or makes one of its own.
    void SetErrorListener(const qor::objptr_t<IErrorListener>& errorListener, const char* function);

    boost::shared_ptr<ResourceProvider> resourceProvider_;
    CommonDictionaryCache commonDictionaries_;
    qor::objptr_t<IErrorListener> errorListener_;
};

}  // namespace localization_manager
