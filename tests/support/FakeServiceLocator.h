// A host's service locator over the fakes.
#pragma once

#include <functional>

#include "FakeAllocator.h"
#include "FakeTracer.h"
#include "localization_manager/host/HostObject.h"
#include "qor/IServiceLocator.h"

namespace lm_test {

using localization_manager::host::Make;

class FakeServiceLocator
    : public Unordered<localization_manager::host::HostObject<qor::IServiceLocator>> {
public:
    qor::objptr_t<FakeAllocator> allocator = Make<FakeAllocator>();
    qor::objptr_t<FakeTracer> tracer = Make<FakeTracer>();

    /// Asked before every service is given; what it answers other than `rcOk` is the answer, and no
    /// service is given: what a failure leaves behind the out pointer is no reference. May throw.
    std::function<qor::result_t()> intercept = [] { return qor::rcOk; };

    qor::result_t GetService(std::uint32_t interfaceId, std::uintptr_t reserved,
                             void** out) override {
        EXPECT_EQ(reserved, 0U);
        if (const qor::result_t answer = intercept(); answer != qor::rcOk) {
            *out = qor::Failed(answer) ? allocator.get() : nullptr;
            return answer;
        }
        return interfaceId == qor::IAllocator::InterfaceId
                   ? allocator->QueryInterface(interfaceId, out)
                   : tracer->QueryInterface(interfaceId, out);
    }
};

}  // namespace lm_test
