// The object that a host creates through the module's factory.
#pragma once

#include <boost/shared_ptr.hpp>
#include <string>
#include <string_view>

#include "CommonDictionaryCache.h"
#include "Engine.h"
#include "IResourceProvider.h"
#include "localization_manager/IConstruct.h"
#include "localization_manager/ILocalizationManager.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/contracts/ContractLocation.h"
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
                         qor::platform::object_argument<IErrorListener> passedListener) override;
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

    // The provider comes by value: a creation ends with the one that it began with, even if the host,
    // asked for memory meanwhile, initialises the manager anew.
    qor::result_t CreateLocalizer(const qor::string16_t& scope, const Culture& culture,
                                  boost::shared_ptr<ResourceProvider> resourceProvider,
                                  IParamResolver* paramResolver, ILocalizer** localizer);
    qor::result_t CreateBufferLocalizer(const qor::string16_t& scope, const Culture& culture,
                                        boost::shared_ptr<ResourceProvider> resourceProvider,
                                        IParamResolver* paramResolver, ILocalizer** localizer);

    /// What both do alike: makes a localizer, has `initialise` make it ready and hands it out.
    /// @param creation  place of the creation, for the message of its failure.
    template <class LocalizerClass, class Initialise>
    qor::result_t Create(const qor::string16_t& scope, const Culture& culture,
                         const boost::shared_ptr<ResourceProvider>& resourceProvider,
                         ILocalizer** localizer, const code_contracts::ContractLocation& creation,
                         Initialise initialise);

    /// Serves a text of the host under a name of its own.
    boost::shared_ptr<ResourceProvider> WrapBuffer(const std::u16string& scope,
                                                   const qor::string16_t& buffer,
                                                   std::u16string_view commonBuffer) const;

    /// Takes the host's listener, or makes one of its own.
    void SetErrorListener(const qor::objptr_t<IErrorListener>& errorListener, const char* function);

    void CheckErrorListener(const char* function, std::int32_t line) const;

    boost::shared_ptr<ResourceProvider> resourceProvider_;
    CommonDictionaryCache commonDictionaries_;
    qor::objptr_t<IErrorListener> errorListener_;
};

}  // namespace localization_manager
