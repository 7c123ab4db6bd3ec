// A thread as a host may make it: with little stack.
#pragma once

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <functional>

namespace lm_test {

/// Runs a function on a thread with a stack of `size` bytes, and waits for its end.
inline void RunOnSmallStack(std::size_t size, std::function<void()> function) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    EXPECT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
    const auto run = [](void* toRun) -> void* {
        (*static_cast<std::function<void()>*>(toRun))();
        return nullptr;
    };
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &function), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

}  // namespace lm_test
