#include "LocalizerBase.h"

#include <utility>

#include "CultureNames.h"
#include "Messages.h"
#include "Utf8.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

void LocalizerBase::Init(const qor::string16_t& scope, const Culture& culture,
                         boost::shared_ptr<EngineParamResolver> paramResolver,
                         const qor::objptr_t<IErrorListener>& errorListener) {
    errorListener_ = errorListener;
    culture_ = culture;
    paramResolver_ = std::move(paramResolver);
    scope_ = scope.view();
}

qor::result_t LocalizerBase::HasString(const qor::string16_t& key) {
    StringProvider* const provider = EnsureStringProvider();
    try {
        const bool hasKey = provider != nullptr && provider->HasString(key.view());
        return hasKey ? qor::rcOk : qor::rcUnspecifiedError;
    } catch (const std::exception&) {  // memory ran out
        return qor::rcUnspecifiedError;
    }
}

qor::result_t LocalizerBase::GetResolvedString(const qor::string16_t& key, qor::string16_t& result,
                                               IResolveListener* listener) {
    StringProvider* const provider = EnsureStringProvider();
    if (provider == nullptr) {
        return qor::rcUnspecifiedError;
    }
    try {
        // A listener hears the key last; the host may use its string for something else by then.
        const std::u16string heard(listener != nullptr ? key.view() : std::u16string_view());
        const std::u16string_view asked = listener != nullptr ? heard : key.view();
        result = provider->GetString(asked, listener).view();
        return qor::rcOk;
    } catch (const std::exception& failure) {
        ReportError("cannot get string", key, failure);
        return qor::rcUnspecifiedError;
    }
}

LocalizerBase::StringProvider* LocalizerBase::EnsureStringProvider() {
    try {
        return &stringProvider_.Get(BuildLock(), [this] {
            std::unique_ptr<StringProvider> pipeline = BuildPipeline(paramResolver_);
            paramResolver_.reset();
            return pipeline;
        });
    } catch (const std::exception& failure) {
        localization_manager::ReportError(*errorListener_, [&] {
            return "localization manager error: cannot create string localizer for scope " +
                   ToUtf8(scope_) + " culture " + CultureText(culture_) +
                   ", error: " + WhatOf(failure);
        });
        return nullptr;
    }
}

void LocalizerBase::ReportError(const char* what, const qor::string16_t& key,
                                const std::exception& failure) {
    localization_manager::ReportError(*errorListener_, [&] {
        return std::string("localization manager error: ") + what +
               " for key: " + ToUtf8(key.view()) + ", error: " + WhatOf(failure);
    });
}

}  // namespace localization_manager
