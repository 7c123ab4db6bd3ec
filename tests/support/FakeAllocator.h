// A host's allocator that counts, and fails when told to.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <mutex>
#include <set>

#include "localization_manager/host/HostObject.h"
#include "qor/IAllocator.h"

namespace lm_test {

class FakeAllocator : public localization_manager::host::HostObject<qor::IAllocator> {
public:
    ~FakeAllocator() override { EXPECT_TRUE(live_.empty()) << "blocks never freed"; }

    void* Alloc(std::size_t size) override {
        const std::lock_guard<std::mutex> lock(mutex_);
        lastSize_ = size;
        const bool fails = size > kLargest || (callsLeft_ != kForever && callsLeft_-- <= 1);
        return fails ? nullptr : *live_.insert(std::malloc(size)).first;
    }

    void* Reserved(void* /*pointer*/, std::size_t /*size*/) override {
        ADD_FAILURE() << "slot 4 is not for components";
        return nullptr;
    }

    void Free(void* pointer) override {
        const std::lock_guard<std::mutex> lock(mutex_);
        EXPECT_EQ(live_.erase(pointer), 1U) << "not a live block of this allocator";
        std::free(pointer);
    }

    /// Lets the n-th call from now fail, and all after it, until `Recover`.
    void FailAt(int call) { callsLeft_ = call; }
    void Recover() { callsLeft_ = kForever; }

    std::size_t LiveBlocks() const { return live_.size(); }
    std::size_t LastSize() const { return lastSize_; }

private:
    static constexpr std::size_t kLargest = std::size_t{1} << 26U;
    static constexpr int kForever = std::numeric_limits<int>::max();

    std::mutex mutex_;
    std::set<void*> live_;
    std::size_t lastSize_ = 0;
    int callsLeft_ = kForever;
};

}  // namespace lm_test
