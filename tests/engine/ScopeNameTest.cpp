// Names of scopes whose texts are in memory.
#include "ScopeName.h"

#include <gtest/gtest.h>

#include <ctime>
#include <random>

#include "Utf8.h"

namespace {

/// A UUID of version 4 from the engine's words, lowest bytes first.
std::string NameAt(std::time_t second) {
    std::mt19937 engine(static_cast<std::uint32_t>(second));
    const auto draw = [&] { return __builtin_bswap32(static_cast<std::uint32_t>(engine())); };
    const std::uint32_t a = draw();
    const std::uint32_t b = (draw() & 0xFFFF0FFFU) | 0x4000U;
    const std::uint32_t c = (draw() & 0x3FFFFFFFU) | 0x80000000U;
    char text[37];
    std::snprintf(text, sizeof text, "%08x-%04x-%04x-%04x-%04x%08x", a, b >> 16U, b & 0xFFFFU,
                  c >> 16U, c & 0xFFFFU, draw());
    return text;
}

TEST(ScopeNameTest, TheSecondOfTheCallSeedsTheName) {
    const std::time_t before = std::time(nullptr);
    const auto name = LocalizationManager::Text::ToUtf8(localization_manager::GenerateScopeName());
    EXPECT_TRUE(name == NameAt(before) || name == NameAt(std::time(nullptr))) << name;
}

}  // namespace
