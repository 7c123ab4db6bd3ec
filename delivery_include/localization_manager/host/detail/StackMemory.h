// Memory for the strings of one call, on the caller's stack.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "qor/Allocator.h"
#include "qor/IAllocator.h"
#include "qor/platform/process_heap.h"

namespace localization_manager::host::detail {

/// Gives from its own bytes while they last, from the process heap afterwards; what it gave from its own
/// is never given again. Belongs to one thread, and has to outlive the strings made with it.
class StackMemory final : public qor::IAllocator {
public:
    StackMemory() = default;
    StackMemory(const StackMemory&) = delete;
    StackMemory& operator=(const StackMemory&) = delete;
    ~StackMemory() = default;

    /// For a string.
    qor::Allocator<char16_t> Allocator() {
        return qor::Allocator<char16_t>(qor::objptr_t<qor::IAllocator>::Adopt(this));
    }

    void* Alloc(std::size_t size) override {
        const std::size_t rounded = (size + alignof(std::max_align_t) - 1) /
                                    alignof(std::max_align_t) * alignof(std::max_align_t);
        if (rounded > bytes_.size() - used_ || rounded < size) {
            return qor::platform::AllocateFromProcessHeap(size);
        }
        void* const memory = bytes_.data() + used_;
        used_ += rounded;
        return memory;
    }
    void* Reserved(void* /*pointer*/, std::size_t /*size*/) override { return nullptr; }
    void Free(void* pointer) override {
        const auto at = reinterpret_cast<std::uintptr_t>(pointer);
        const auto own = reinterpret_cast<std::uintptr_t>(bytes_.data());
        if (at < own || at >= own + bytes_.size()) {
            qor::platform::FreeToProcessHeap(pointer);
        }
    }

    // It lives as long as its block, whoever refers to it.
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }
    qor::result_t QueryInterface(std::uint32_t /*interfaceId*/, void** /*out*/) override {
        return qor::rcInterfaceNotSupported;
    }

private:
    static constexpr std::size_t kBytes = 1024;

    // NOLINTNEXTLINE(*-member-init): written before it is read, and to clear it would take time
    alignas(std::max_align_t) std::array<std::byte, kBytes> bytes_;
    std::size_t used_ = 0;
};

}  // namespace localization_manager::host::detail
