// Gives the module memory of the process heap.
#pragma once

#include <cstddef>

#include "localization_manager/host/HostObject.h"
#include "qor/IAllocator.h"
#include "qor/platform/process_heap.h"

namespace localization_manager::host {

class HeapAllocator : public HostObject<qor::IAllocator> {
public:
    void* Alloc(std::size_t size) override { return qor::platform::AllocateFromProcessHeap(size); }
    void* Reserved(void* /*pointer*/, std::size_t /*size*/) override { return nullptr; }
    void Free(void* pointer) override { qor::platform::FreeToProcessHeap(pointer); }
};

}  // namespace localization_manager::host
