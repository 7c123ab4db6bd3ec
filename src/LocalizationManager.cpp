#include "LocalizationManager.h"

#include <boost/current_function.hpp>
#include <boost/make_shared.hpp>
#include <utility>

#include "AtBoundary.h"
#include "BufferLocalizer.h"
#include "BufferResourceProvider.h"
#include "CreateComponent.h"
#include "CultureNames.h"
#include "ErrorListener.h"
#include "FileResourceProvider.h"
#include "GeneratedScopeName.h"
#include "Localizer.h"
#include "MessageUtf8.h"
#include "failure_reports.h"
#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

namespace {

// The lines that messages print.
constexpr std::int32_t kCreateListenerLine = 466;
constexpr std::int32_t kInitListenerLine = 470;
constexpr std::int32_t kCreateLocalizerLine = 563;
constexpr std::int32_t kLocalizerListenerLine = 578;
constexpr std::int32_t kCreateBufferLocalizerLine = 611;
constexpr std::int32_t kBufferLocalizerListenerLine = 613;

}  // namespace

qor::result_t LocalizationManager::Init(const qor::string16_t& root,
                                        const qor::string16_t& alternative) {
    return InitEx(root, alternative, nullptr);
}

qor::result_t LocalizationManager::InitEx(
    const qor::string16_t& root, const qor::string16_t& alternative,
    qor::platform::object_argument<IErrorListener> passedListener) {
    const auto errorListener = qor::platform::TakeArgument<IErrorListener>(passedListener);
    if (root.empty()) {
        return qor::rcInvalidState;
    }
    try {
        SetErrorListener(errorListener, BOOST_CURRENT_FUNCTION);
        resourceProvider_ = boost::make_shared<::LocalizationManager::File::FileResourceProvider>(
            std::u16string(root.view()), std::u16string(alternative.view()));
        return qor::rcOk;
    } catch (const std::exception& failure) {
        TraceError(GetTracer(), [&] {
            return "localization manager error: cannot create file resource provider for root='" +
                   ToUtf8(root.view()) + "' alternative='" + ToUtf8(alternative.view()) +
                   "', error: " + WhatOf(failure);
        });
        return qor::rcUnspecifiedError;
    }
}

qor::result_t LocalizationManager::CreateLocalizer(const qor::string16_t& scope,
                                                   const Culture& culture,
                                                   IParamResolver* paramResolver,
                                                   ILocalizer** localizer) {
    return CreateLocalizer(scope, culture, resourceProvider_, paramResolver, localizer);
}

qor::result_t LocalizationManager::CreateLocalizerFromBuffer(const qor::string16_t& buffer,
                                                             const Culture& culture,
                                                             IParamResolver* paramResolver,
                                                             ILocalizer** localizer) {
    return AtBoundary([&] {
        const std::u16string scope = GenerateScopeName();
        return CreateLocalizer(qor::string16_t(scope), culture, WrapBuffer(scope, buffer, {}),
                               paramResolver, localizer);
    });
}

qor::result_t LocalizationManager::CreateBufferLocalizer(const qor::string16_t& scopePrefix,
                                                         const qor::string16_t& buffer,
                                                         const qor::string16_t& commonBuffer,
                                                         const Culture& culture,
                                                         IParamResolver* paramResolver,
                                                         ILocalizer** localizer) {
    return AtBoundary([&] {
        const std::u16string scope = std::u16string(scopePrefix.view()) + GenerateScopeName();
        return CreateBufferLocalizer(qor::string16_t(scope), culture,
                                     WrapBuffer(scope, buffer, commonBuffer.view()), paramResolver,
                                     localizer);
    });
}

qor::result_t LocalizationManager::Construct(const LocalizationManagerSettings* settings) {
    return settings != nullptr ? Init(settings->root, settings->alternative)
                               : qor::rcInvalidArgument;
}

qor::result_t LocalizationManager::CreateLocalizer(
    const qor::string16_t& scope, const Culture& culture,
    boost::shared_ptr<ResourceProvider> resourceProvider, IParamResolver* paramResolver,
    ILocalizer** localizer) {
    const char* const function = BOOST_CURRENT_FUNCTION;
    return Create<Localizer>(
        scope, culture, resourceProvider, localizer,
        {"qor::Object<Localizer>::CreateInstance(GetServiceLocator(), localizer.Ref())", function,
         kServiceSource, kCreateLocalizerLine},
        [&](Localizer& created) {
            const CommonDictionaryCache::Entry common = commonDictionaries_.Get(culture);
            CheckErrorListener(function, kLocalizerListenerLine);
            created.Init(resourceProvider, common.dictionary, common.syncObject, scope, culture,
                         paramResolver, errorListener_);
        });
}

qor::result_t LocalizationManager::CreateBufferLocalizer(
    const qor::string16_t& scope, const Culture& culture,
    boost::shared_ptr<ResourceProvider> resourceProvider, IParamResolver* paramResolver,
    ILocalizer** localizer) {
    const char* const function = BOOST_CURRENT_FUNCTION;
    return Create<BufferLocalizer>(
        scope, culture, resourceProvider, localizer,
        {"qor::Object<BufferLocalizer>::CreateInstance(GetServiceLocator(), localizer.Ref())",
         function, kServiceSource, kCreateBufferLocalizerLine},
        [&](BufferLocalizer& created) {
            CheckErrorListener(function, kBufferLocalizerListenerLine);
            created.Init(resourceProvider, scope, culture, paramResolver, errorListener_);
        });
}

template <class LocalizerClass, class Initialise>
qor::result_t LocalizationManager::Create(
    const qor::string16_t& scope, const Culture& culture,
    const boost::shared_ptr<ResourceProvider>& resourceProvider, ILocalizer** localizer,
    const code_contracts::ContractLocation& creation, Initialise initialise) {
    if (localizer == nullptr) {
        return qor::rcInvalidArgument;
    }
    if (!resourceProvider) {
        return qor::rcInvalidState;
    }
    try {
        auto created = CreateComponent<LocalizerClass>(GetServiceLocator(),
                                                       "Cannot create Localizer", creation);
        initialise(*created);
        *localizer = created.Detach();
        return qor::rcOk;
    } catch (const std::exception& failure) {
        TraceError(GetTracer(), [&] {
            return "localization manager error: cannot create Localizer for scope " +
                   ToUtf8(scope.view()) + " culture " + CultureText(culture) +
                   ", error: " + WhatOf(failure);
        });
        return qor::rcUnspecifiedError;
    }
}

boost::shared_ptr<LocalizationManager::ResourceProvider> LocalizationManager::WrapBuffer(
    const std::u16string& scope, const qor::string16_t& buffer,
    std::u16string_view commonBuffer) const {
    return boost::make_shared<::LocalizationManager::File::BufferResourceProvider>(
        resourceProvider_, scope, std::u16string(buffer.view()), std::u16string(commonBuffer));
}

void LocalizationManager::SetErrorListener(const qor::objptr_t<IErrorListener>& errorListener,
                                           const char* function) {
    if (errorListener) {
        errorListener_ = errorListener;
    } else {
        errorListener_ = CreateComponent<ErrorListener>(
            GetServiceLocator(), "Cannot create internal tracer",
            {"qor::Object<ErrorListener>::CreateInstance(GetServiceLocator(), "
             "errorListener_.Ref())",
             function, kServiceSource, kCreateListenerLine});
    }
    CheckErrorListener(function, kInitListenerLine);
}

void LocalizationManager::CheckErrorListener(const char* function, std::int32_t line) const {
    code_contracts::CheckNotNull(errorListener_,
                                 {"errorListener_", function, kServiceSource, line});
}

}  // namespace localization_manager
