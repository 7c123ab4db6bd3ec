// A file that is in use elsewhere.
#pragma once

#include <gtest/gtest.h>
#include <sys/file.h>

#include <cstdio>
#include <filesystem>
#include <memory>

namespace lm_test {

/// Makes an empty file that nobody else may open as long as the answer lives.
inline std::shared_ptr<std::FILE> LockedFile(const std::filesystem::path& path) {
    std::shared_ptr<std::FILE> file(std::fopen(path.c_str(), "w"), std::fclose);
    EXPECT_EQ(flock(fileno(file.get()), LOCK_EX), 0);
    return file;
}

}  // namespace lm_test
