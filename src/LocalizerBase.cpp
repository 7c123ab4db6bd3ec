#include "LocalizerBase.h"

#include <boost/container/small_vector.hpp>
#include <utility>

#include "CultureNames.h"
#include "HostResolveListener.h"
#include "MessageUtf8.h"
#include "failure_reports.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

void LocalizerBase::Init(const qor::string16_t& scope, const Culture& culture,
                         boost::shared_ptr<EngineParamResolver> paramResolver,
                         qor::objptr_t<IErrorListener> errorListener) {
    errorListener_ = std::move(errorListener);
    culture_.emplace(culture);
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
    // A callback may use the host's string for something else before the key is heard or reported.
    boost::container::small_vector<char16_t, 64> kept;
    std::u16string_view asked = key.view();
    try {
        kept.assign(asked.begin(), asked.end());
        asked = {kept.data(), kept.size()};
        std::optional<HostResolveListener> heardBy;
        if (listener != nullptr) {
            heardBy.emplace(*listener, *GetAllocator());
        }
        engine::Resolving::ResolvedText text;
        // Without a listener the copy is not read yet, which would wait until it is written.
        provider->GetString(heardBy ? asked : key.view(), heardBy ? &*heardBy : nullptr, text);
        result = text.view();
        return qor::rcOk;
    } catch (const std::exception& failure) {
        ReportError("cannot get string", asked, failure);
        return qor::rcUnspecifiedError;
    }
}

LocalizerBase::StringProvider* LocalizerBase::BuildStringProvider() {
    try {
        return &stringProvider_.GetOrBuild(BuildLock(), [this] {
            std::unique_ptr<StringProvider> pipeline = BuildPipeline(paramResolver_);
            paramResolver_.reset();
            return pipeline;
        });
    } catch (const std::exception& failure) {
        localization_manager::ReportError(*errorListener_, [&] {
            return JoinReport(
                *GetAllocator(),
                {"localization manager error: cannot create string localizer for scope ",
                 ToUtf8(scope_), " culture ", CultureText(culture()),
                 ", error: ", WhatOf(failure)});
        });
        return nullptr;
    }
}

void LocalizerBase::ReportError(const char* what, std::u16string_view key,
                                const std::exception& failure) {
    localization_manager::ReportError(*errorListener_, [&] {
        return JoinReport(*GetAllocator(), {"localization manager error: ", what, " for key: ",
                                            ToUtf8(key), ", error: ", WhatOf(failure)});
    });
}

}  // namespace localization_manager
