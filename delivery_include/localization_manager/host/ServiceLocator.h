// The services that the module needs of its host.
#pragma once

#include <cstdint>
#include <utility>

#include "localization_manager/host/HeapAllocator.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Report.h"
#include "localization_manager/host/Tracer.h"
#include "qor/IServiceLocator.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"

namespace localization_manager::host {

class ServiceLocator : public HostObject<qor::IServiceLocator> {
public:
    /// Neither may be null; a tracer without a report stands for a host that wants to hear nothing.
    explicit ServiceLocator(qor::objptr_t<qor::ITracer> tracer,
                            qor::objptr_t<qor::IAllocator> allocator = Make<HeapAllocator>())
        : tracer_(std::move(tracer)), allocator_(std::move(allocator)) {}

    /// Memory of the process heap, and a tracer of all levels.
    explicit ServiceLocator(Report report) : ServiceLocator(Make<Tracer>(std::move(report))) {}

    qor::result_t GetService(std::uint32_t interfaceId, std::uintptr_t /*reserved*/,
                             void** out) override {
        switch (interfaceId) {
            case qor::IAllocator::InterfaceId:
                return allocator_->QueryInterface(interfaceId, out);
            case qor::ITracer::InterfaceId:
                return tracer_->QueryInterface(interfaceId, out);
            default:
                return qor::rcInterfaceNotSupported;
        }
    }

private:
    const qor::objptr_t<qor::ITracer> tracer_;
    const qor::objptr_t<qor::IAllocator> allocator_;
};

}  // namespace localization_manager::host
