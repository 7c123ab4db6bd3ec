// A host's allocator that counts, and fails when told to.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "localization_manager/host/HostObject.h"
#include "qor/IAllocator.h"

namespace lm_test {

class FakeAllocator : public localization_manager::host::HostObject<qor::IAllocator> {
public:
    /// Lets every call fail.
    bool exhausted = false;
    std::size_t lastSize = 0;
    std::set<void*> live;

    ~FakeAllocator() override { EXPECT_TRUE(live.empty()) << "blocks never freed"; }

    void* Alloc(std::size_t size) override {
        constexpr std::size_t kLargest = std::size_t{1} << 26U;
        lastSize = size;
        return exhausted || size > kLargest ? nullptr : *live.insert(std::malloc(size)).first;
    }

    void* Reserved(void* /*pointer*/, std::size_t /*size*/) override {
        ADD_FAILURE() << "not for components";
        return nullptr;
    }

    void Free(void* pointer) override {
        EXPECT_EQ(live.erase(pointer), 1U) << "not a live block of this allocator";
        AddRef();
        EXPECT_GE(Release(), 2U) << "given back before the last block";
        std::free(pointer);
    }
};

}  // namespace lm_test
