// A host's allocator that counts, and fails when told to.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <utility>

#include "Unordered.h"
#include "localization_manager/host/HostObject.h"
#include "qor/IAllocator.h"

namespace lm_test {

class FakeAllocator : public Unordered<localization_manager::host::HostObject<qor::IAllocator>> {
public:
    /// Lets every call fail.
    bool exhausted = false;
    /// The n-th call from now fails; 0 for none.
    std::atomic<int> failAt{0};
    std::atomic<std::size_t> lastSize{0};

    ~FakeAllocator() override { EXPECT_EQ(Live(), 0) << "blocks never freed"; }

    /// Blocks that have not been given back.
    int Live() const { return live_.load(kRelaxed); }

    void* Alloc(std::size_t size) override {
        constexpr std::size_t kLargest = std::size_t{1} << 26U;
        lastSize.store(size, kRelaxed);
        const bool fails = failAt.load(kRelaxed) > 0 && failAt.fetch_sub(1, kRelaxed) == 1;
        if (exhausted || fails || size > kLargest) {
            return nullptr;
        }
        auto* const block = static_cast<Block*>(std::malloc(sizeof(Block) + size));
        block->owner = this;
        live_.fetch_add(1, kRelaxed);
        return block + 1;
    }

    void* Reserved(void* /*pointer*/, std::size_t /*size*/) override {
        ADD_FAILURE() << "not for components";
        return nullptr;
    }

    void Free(void* pointer) override {
        Block* const block = static_cast<Block*>(pointer) - 1;
        EXPECT_EQ(std::exchange(block->owner, nullptr), this) << "not a block of this allocator";
        EXPECT_GE(References(*this), 2U) << "given back before the last block";
        live_.fetch_sub(1, kRelaxed);
        std::free(block);
    }

private:
    /// What stands in front of the memory that is given away.
    struct alignas(std::max_align_t) Block {
        const FakeAllocator* owner;
    };
    static constexpr auto kRelaxed = std::memory_order_relaxed;

    std::atomic<int> live_{0};
};

}  // namespace lm_test
