// Where framework strings get their storage.
#pragma once

#include <cstddef>
#include <limits>
#include <utility>

#include "qor/BadAllocation.h"
#include "qor/IAllocator.h"
#include "qor/objptr_t.h"
#include "qor/platform/process_heap.h"

namespace qor {

/// Storage for objects of type `T`: from an `IAllocator` of the host when it holds one, from the
/// process heap otherwise. One pointer wide. What one allocator gave, an equal one takes back.
template <class T>
class Allocator {
public:
    Allocator() noexcept = default;
    explicit Allocator(objptr_t<IAllocator> source) noexcept : source_(std::move(source)) {}

    /// @throws BadAllocation when there is no memory.
    T* allocate(std::size_t count) {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T)) {
            throw BadAllocation();
        }
        const std::size_t size = count * sizeof(T);
        void* const memory =
            source_ ? source_->Alloc(size) : platform::AllocateFromProcessHeap(size);
        if (memory == nullptr) {
            throw BadAllocation();
        }
        return static_cast<T*>(memory);
    }

    void deallocate(T* memory) {
        if (source_) {
            source_->Free(memory);
        } else {
            platform::FreeToProcessHeap(memory);
        }
    }

    /// The host's allocator, without a new reference; null for the process heap.
    IAllocator* source() const noexcept { return source_.get(); }

    friend bool operator==(const Allocator& left, const Allocator& right) noexcept {
        return left.source() == right.source();
    }

private:
    objptr_t<IAllocator> source_;
};

}  // namespace qor
