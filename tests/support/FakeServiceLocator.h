// A host's service locator over the fakes.
#pragma once

#include <functional>
#include <utility>

#include "FakeAllocator.h"
#include "FakeTracer.h"
#include "localization_manager/host/HostObject.h"
#include "qor/IServiceLocator.h"

namespace lm_test {

using localization_manager::host::Make;

class FakeServiceLocator : public localization_manager::host::HostObject<qor::IServiceLocator> {
public:
    explicit FakeServiceLocator(qor::objptr_t<FakeAllocator> itsAllocator = Make<FakeAllocator>(),
                                qor::objptr_t<FakeTracer> itsTracer = Make<FakeTracer>())
        : allocator(std::move(itsAllocator)), tracer(std::move(itsTracer)) {}

    const qor::objptr_t<FakeAllocator> allocator;
    const qor::objptr_t<FakeTracer> tracer;

    /// When set, asked before every service is given; what it answers other than `rcOk` is the
    /// answer, and no service is given. May throw.
    std::function<qor::result_t(std::uint32_t interfaceId)> intercept;

    qor::result_t GetService(std::uint32_t interfaceId, std::uintptr_t reserved,
                             void** out) override {
        EXPECT_EQ(reserved, 0U);
        const qor::result_t answer = intercept ? intercept(interfaceId) : qor::rcOk;
        if (answer != qor::rcOk) {
            return answer;
        }
        if (interfaceId == qor::IAllocator::InterfaceId) {
            return allocator->QueryInterface(interfaceId, out);
        }
        return tracer->QueryInterface(interfaceId, out);
    }
};

/// The present reference count of a host object.
template <class Object>
std::uint32_t References(Object& object) {
    object.AddRef();
    return object.Release();
}

}  // namespace lm_test
