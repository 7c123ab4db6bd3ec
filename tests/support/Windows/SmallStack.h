// A thread as a host may make it: with little stack.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>

#include "System.h"

namespace lm_test {

/// Runs a function on a thread with a stack of `size` bytes, and waits for its end.
inline void RunOnSmallStack(std::size_t size, std::function<void()> function) {
    const auto run = [](void* toRun) WINAPI -> DWORD {
        (*static_cast<std::function<void()>*>(toRun))();
        return 0;
    };
    const HANDLE thread =
        ::CreateThread(nullptr, size, run, &function, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    ASSERT_NE(thread, nullptr);
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
}

}  // namespace lm_test
