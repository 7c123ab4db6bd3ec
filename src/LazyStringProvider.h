// A string provider that is built at the first request.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>

#include "CriticalSection.h"
#include "Engine.h"
#include "IStringProvider.h"

namespace localization_manager {

/// May be asked from several threads: it is built once, under a lock, and read without one.
class LazyStringProvider {
public:
    using StringProvider = engine::Resolving::IStringProvider;

    LazyStringProvider() = default;
    LazyStringProvider(const LazyStringProvider&) = delete;
    LazyStringProvider& operator=(const LazyStringProvider&) = delete;
    ~LazyStringProvider() { delete provider_.load(std::memory_order_acquire); }

    /// Null while there is none.
    StringProvider* Get() const noexcept { return provider_.load(std::memory_order_acquire); }

    /// @param lock   held while the provider is built, and left before a failure leaves.
    /// @param build  makes the provider; when it throws, the next request tries again.
    template <class Build>
    StringProvider& GetOrBuild(qor::CriticalSection& lock, Build build) {
        const std::lock_guard<qor::CriticalSection> guard(lock);
        StringProvider* provider = Get();
        if (provider == nullptr) {
            std::unique_ptr<StringProvider> built = build();
            provider = built.release();
            provider_.store(provider, std::memory_order_release);
        }
        return *provider;
    }

private:
    std::atomic<StringProvider*> provider_{nullptr};
};

}  // namespace localization_manager
