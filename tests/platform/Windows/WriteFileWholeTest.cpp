// What a file keeps when another one takes its place.
#include "WriteFileWhole.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

#include "LockedFile.h"
#include "TempTree.h"

#include "System.h"

#include <sddl.h>

namespace {

namespace fs = std::filesystem;

std::string SecurityOf(const fs::path& path) {
    std::string descriptor(1000, '\0');
    DWORD size = 0;
    EXPECT_NE(
        ::GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                           descriptor.data(), static_cast<DWORD>(descriptor.size()), &size),
        FALSE);
    descriptor.resize(size);
    return descriptor;
}

TEST(WriteFileWholeTest, TheNewFileIsForWhomTheOldOneWas) {
    const lm_test::TempTree tree;
    const fs::path path = tree.Write("file", "old");
    PSECURITY_DESCRIPTOR forUsers = nullptr;
    ASSERT_NE(::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;AU)", 1,
                                                                     &forUsers, nullptr),
              FALSE);
    ASSERT_NE(::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, forUsers), FALSE);
    ::LocalFree(forUsers);
    const std::string security = SecurityOf(path);
    ASSERT_NE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN), FALSE);
    EXPECT_FALSE(Platform::WriteFileWhole(path, "new"));
    EXPECT_EQ(SecurityOf(path), security);
    EXPECT_EQ(::GetFileAttributesW(path.c_str()), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(fs::file_size(path), 3U);
}

TEST(WriteFileWholeTest, AFileInUseStays) {
    const lm_test::TempTree tree;
    const auto locked = lm_test::LockedFile(tree.Root() / "file");
    EXPECT_EQ(Platform::WriteFileWhole(tree.Root() / "file", "new").value(), ERROR_ACCESS_DENIED);
    EXPECT_EQ(std::distance(fs::directory_iterator(tree.Root()), {}), 1);
}

}  // namespace
