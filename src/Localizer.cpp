#include "Localizer.h"

#include <boost/current_function.hpp>
#include <boost/make_shared.hpp>
#include <utility>

#include "AtBoundary.h"
#include "BinaryIO.h"
#include "CreateComponent.h"
#include "HostParamResolver.h"
#include "ResourceProcessingPipeline.h"
#include "failure_reports.h"
#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

using code_contracts::CheckNotNull;

namespace {

// The lines that messages print.
constexpr std::int32_t kCreateStreamLine = 116;
constexpr std::int32_t kResourceProviderLine = 208;
constexpr std::int32_t kCommonResourceDictionaryLine = 209;
constexpr std::int32_t kSyncObjectLine = 210;
constexpr std::int32_t kErrorListenerLine = 211;
constexpr std::int32_t kResolveLine = 265;

}  // namespace

class Localizer::ParamResolverWrapper : public HostParamResolver {
public:
    using HostParamResolver::HostParamResolver;

    void Resolve(std::u16string_view name, engine::Resolving::ResolvedText& output) override {
        Ask(name, output, BOOST_CURRENT_FUNCTION, kResolveLine);
    }
};

void Localizer::Init(
    const boost::shared_ptr<ResourceProvider>& resourceProvider,
    const boost::shared_ptr<Dictionary>& commonResourceDictionary,
    const boost::shared_ptr<qor::CriticalSection>& commonResourceDictionarySyncObject,
    const qor::string16_t& scope, const Culture& culture, IParamResolver* paramResolver,
    qor::objptr_t<IErrorListener> errorListener) {
    const char* const function = BOOST_CURRENT_FUNCTION;
    CheckNotNull(resourceProvider,
                 {"resourceProvider", function, kServiceSource, kResourceProviderLine});
    CheckNotNull(commonResourceDictionary, {"commonResourceDictionary", function, kServiceSource,
                                            kCommonResourceDictionaryLine});
    CheckNotNull(commonResourceDictionarySyncObject,
                 {"commonResourceDictionarySyncObject", function, kServiceSource, kSyncObjectLine});
    CheckNotNull(errorListener, {"errorListener", function, kServiceSource, kErrorListenerLine});
    LocalizerBase::Init(scope, culture,
                        boost::make_shared<ParamResolverWrapper>(paramResolver, *GetAllocator()),
                        std::move(errorListener));
    resourceProvider_ = resourceProvider;
    commonResourceDictionary_ = commonResourceDictionary;
    commonResourceDictionarySyncObject_ = commonResourceDictionarySyncObject;
}

qor::result_t Localizer::GetString(const qor::string16_t& key, qor::string16_t& result) {
    return LocalizerBase::GetResolvedString(key, result, nullptr);
}

qor::result_t Localizer::GetStream(const qor::string16_t& key, qor::IIO** stream) {
    if (stream == nullptr) {
        return qor::rcInvalidArgument;
    }
    try {
        auto created = CreateComponent<BinaryIO>(
            GetServiceLocator(), "cannot create BinaryIO",
            {"qor::Object<BinaryIO>::CreateInstance(GetServiceLocator(), stream.Ref())",
             BOOST_CURRENT_FUNCTION, kServiceSource, kCreateStreamLine});
        const std::u16string path = FindResource(key);
        if (path.empty()) {
            return qor::rcNotFound;
        }
        created->Init(path);
        *stream = created.Detach();
        return qor::rcOk;
    } catch (const std::exception& failure) {
        ReportError("cannot open binary resource file stream", key.view(), failure);
        return qor::rcUnspecifiedError;
    }
}

qor::result_t Localizer::HasResource(const qor::string16_t& key) {
    return AtBoundary(
        [&] { return FindResource(key).empty() ? qor::rcUnspecifiedError : qor::rcOk; });
}

qor::result_t Localizer::GetPath(const qor::string16_t& key, qor::string16_t& path) {
    if (key.empty()) {
        return qor::rcInvalidArgument;
    }
    try {
        const std::u16string found = FindResource(key);
        if (found.empty()) {
            return qor::rcNotFound;
        }
        path = found;
        return qor::rcOk;
    } catch (const std::exception& failure) {
        ReportError("cannot get path", key.view(), failure);
        return qor::rcUnspecifiedError;
    }
}

std::unique_ptr<Localizer::StringProvider> Localizer::BuildPipeline(
    const boost::shared_ptr<EngineParamResolver>& paramResolver) {
    return std::make_unique<engine::Pipeline::ResourceProcessingPipeline>(
        resourceProvider_, paramResolver, commonResourceDictionary_, culture(), scope(),
        engine::Pipeline::kCommonResourceName);
}

qor::CriticalSection& Localizer::BuildLock() {
    return *commonResourceDictionarySyncObject_;
}

std::u16string Localizer::FindResource(const qor::string16_t& key) {
    return resourceProvider_->GetResourcePath(scope(), culture(), std::u16string(key.view()));
}

}  // namespace localization_manager
