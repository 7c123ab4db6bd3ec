// A file that is in use elsewhere.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "System.h"

namespace lm_test {

/// Makes an empty file that nobody else may open as long as the answer lives.
inline std::shared_ptr<void> LockedFile(const std::filesystem::path& path) {
    const HANDLE file =
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    return {file, &::CloseHandle};
}

}  // namespace lm_test
