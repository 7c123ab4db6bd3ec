#include "BufferLocalizer.h"

#include <boost/current_function.hpp>
#include <boost/make_shared.hpp>
#include <utility>

#include "BufferProcessingPipeline.h"
#include "HostParamResolver.h"
#include "failure_reports.h"
#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

using code_contracts::CheckNotNull;

namespace {

// The lines that messages print.
constexpr std::int32_t kResourceProviderLine = 351;
constexpr std::int32_t kErrorListenerLine = 352;
constexpr std::int32_t kResolveLine = 400;

}  // namespace

class BufferLocalizer::ParamResolverWrapper : public HostParamResolver {
public:
    using HostParamResolver::HostParamResolver;

    void Resolve(std::u16string_view name, engine::Resolving::ResolvedText& output) override {
        Ask(name, output, BOOST_CURRENT_FUNCTION, kResolveLine);
    }
};

void BufferLocalizer::Init(const boost::shared_ptr<ResourceProvider>& resourceProvider,
                           const qor::string16_t& scope, const Culture& culture,
                           IParamResolver* paramResolver,
                           qor::objptr_t<IErrorListener> errorListener) {
    CheckNotNull(resourceProvider, {"resourceProvider", BOOST_CURRENT_FUNCTION, kServiceSource,
                                    kResourceProviderLine});
    CheckNotNull(errorListener,
                 {"errorListener", BOOST_CURRENT_FUNCTION, kServiceSource, kErrorListenerLine});
    LocalizerBase::Init(scope, culture,
                        boost::make_shared<ParamResolverWrapper>(paramResolver, *GetAllocator()),
                        std::move(errorListener));
    resourceProvider_ = resourceProvider;
}

qor::result_t BufferLocalizer::GetString(const qor::string16_t& /*key*/,
                                         qor::string16_t& /*result*/) {
    return qor::rcNotImplemented;
}

qor::result_t BufferLocalizer::GetStream(const qor::string16_t& /*key*/, qor::IIO** /*stream*/) {
    return qor::rcNotImplemented;
}

qor::result_t BufferLocalizer::HasResource(const qor::string16_t& /*key*/) {
    return qor::rcNotImplemented;
}

qor::result_t BufferLocalizer::GetPath(const qor::string16_t& /*key*/, qor::string16_t& /*path*/) {
    return qor::rcNotImplemented;
}

std::unique_ptr<BufferLocalizer::StringProvider> BufferLocalizer::BuildPipeline(
    const boost::shared_ptr<EngineParamResolver>& paramResolver) {
    return std::make_unique<engine::Pipeline::BufferProcessingPipeline>(
        resourceProvider_, paramResolver, culture(), scope(),
        engine::Pipeline::kCommonResourceName);
}

qor::CriticalSection& BufferLocalizer::BuildLock() {
    return buildLock_;
}

}  // namespace localization_manager
