// Names of scopes whose texts are in memory.
#include "GeneratedScopeName.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

using localization_manager::GenerateScopeName;

TEST(GeneratedScopeNameTest, TheSecondOfTheCallSeedsTheName) {
    EXPECT_TRUE(GenerateScopeName(1'700'000'000) == u"76b7aa3b-3077-4ae3-b6dc-a15c140180dd");
    const std::time_t before = std::time(nullptr);
    const std::u16string name = GenerateScopeName();
    EXPECT_TRUE(name == GenerateScopeName(before) || name == GenerateScopeName(std::time(nullptr)));
}

}  // namespace
