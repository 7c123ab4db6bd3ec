// The services that a host gives to the module.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "HostObject.h"

namespace abi_host {

class Allocator : public HostObject {
public:
    Allocator()
        : HostObject({Entry<&Allocator::Alloc>(), Entry<&Allocator::Forbidden>(),
                      Entry<&Allocator::Free>()}) {}
    ~Allocator() { EXPECT_EQ(live_, 0) << "blocks never given back"; }

    int Live() const { return live_; }
    void* Alloc(std::size_t size) {
        if (failAt.load(kRelaxed) > 0 && failAt.fetch_sub(1, kRelaxed) == 1) {
            return nullptr;
        }
        live_.fetch_add(1, kRelaxed);
        return std::malloc(size);
    }
    void Free(void* block) {
        live_.fetch_sub(1, kRelaxed);
        std::free(block);
    }

    /// The n-th call from now fails; 0 for none.
    std::atomic<int> failAt{0};

private:
    std::atomic<int> live_{0};
};

class Tracer : public HostObject {
public:
    Tracer() : HostObject({Entry<&Tracer::RequestRecord>(), Entry<&Tracer::WriteRecord>()}) {}
    ~Tracer() { EXPECT_TRUE(open_.empty()) << "records never written"; }

private:
    Result RequestRecord(std::uint32_t level, char** record, std::uint32_t capacity) {
        constexpr std::uint32_t kEnlarge = 1000;
        const std::lock_guard<std::mutex> lock(openMutex_);
        MaybeThrow();
        std::pair<std::uint32_t, std::vector<char>> opened(level, {});
        if (level == kEnlarge) {
            opened = std::move(open_.at(*record));
            open_.erase(*record);
        }
        opened.second.resize(capacity);
        *record = opened.second.data();
        open_.emplace(*record, std::move(opened));
        return kOk;
    }

    Result WriteRecord(char* buffer, std::uint32_t length) {
        const std::lock_guard<std::mutex> lock(openMutex_);
        Remember(std::to_string(open_.at(buffer).first) + ' ' + std::string(buffer, length));
        open_.erase(buffer);
        return kOk;
    }

    std::mutex openMutex_;
    std::map<char*, std::pair<std::uint32_t, std::vector<char>>> open_;
};

class Services : public HostObject {
public:
    Services() : HostObject({Entry<&Services::GetService>()}) {}

    /// Every object holds each service and the locator once.
    void ExpectHeldBy(std::uint32_t objects) const {
        EXPECT_EQ(References(), 1 + objects);
        EXPECT_EQ(allocator.References(), 1 + objects);
        EXPECT_EQ(tracer.References(), 1 + objects);
    }

    Allocator allocator;
    Tracer tracer;

private:
    Result GetService(std::uint32_t id, std::uintptr_t reserved, void** out) {
        EXPECT_EQ(reserved, 0U);
        HostObject* const service =
            id == kAllocatorId ? static_cast<HostObject*>(&allocator) : &tracer;
        service->AddRef();
        *out = service;
        return kFalse;  // a success, too
    }
};

}  // namespace abi_host
