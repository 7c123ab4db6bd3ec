// Files, attributes and paths of the platform layer.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "Platform.h"
#include "TempTree.h"

namespace {

namespace fs = std::filesystem;
using namespace std::literals;

constexpr Platform::FileHandle kUntouched = -7;

/// One of everything that a name can mean.
class FilesTest : public testing::Test {
protected:
    FilesTest() {
        tree_.Write("dir/file", "0123456789");
        tree_.Write("\xD0\xBA\xD0\xBB\xD1\x8E\xD1\x87 \xF0\x9F\x94\x91", "key");
        fs::create_symlink("dir", tree_.Root() / "dirlink");
        fs::create_symlink("dir/file", tree_.Root() / "filelink");
        fs::create_symlink("nowhere", tree_.Root() / "dangling");
        fs::create_symlink("fifo", tree_.Root() / "fifolink");
        fs::create_symlink("/dev/null", tree_.Root() / "device");
        EXPECT_EQ(::mkfifo((tree_.Root() / "fifo").c_str(), 0600), 0);
    }

    std::u16string Path(std::u16string_view name) const {
        return tree_.Path().append(u"/").append(name);
    }

    /// Leaves `file_` as it was on failure.
    Platform::ErrorNumber Open(std::u16string_view name) {
        return Platform::OpenFile(Path(name), Platform::FileAccess::Read,
                                  Platform::FileSharing::Read,
                                  Platform::FileDisposition::OpenExisting, file_);
    }

    lm_test::TempTree tree_;
    Platform::FileHandle file_ = kUntouched;
};

TEST_F(FilesTest, AttributesDoNotFollowLinksAndOnlyRegularFilesOpenWithoutBlocking) {
    const struct {
        std::u16string_view name;
        Platform::ErrorNumber error;  // of the attributes, which then stay as they were
        bool isDirectory, isLink;
        Platform::ErrorNumber openError;
    } cases[] = {{u"dirlink/file", 0, false, false, 0},
                 {u"\u043A\u043B\u044E\u0447 \U0001F511", 0, false, false, 0},
                 {u"filelink", 0, false, true, 0},
                 {u"dir", 0, true, false, 5},
                 {u"fifo", 0, false, false, 5},
                 {u"fifolink", 0, false, true, 5},
                 {u"device", 0, false, true, 5},
                 {u"dangling", 0, false, true, 2},
                 {u"missing", 2, true, true, 2},
                 {u"dir/file/x", 3, true, true, 3},
                 {u"high \xD800", 123, true, true, 123},
                 {u"\xDC00", 123, true, true, 123},
                 {u"dir/file\0"sv, 123, true, true, 123}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.name));
        Platform::FileAttributes found = {true, true};
        EXPECT_EQ(Platform::GetFileAttributes(Path(expected.name), found), expected.error);
        EXPECT_EQ(found.isDirectory, expected.isDirectory);
        EXPECT_EQ(found.isLink, expected.isLink);
        file_ = kUntouched;
        EXPECT_EQ(Open(expected.name), expected.openError);
        EXPECT_EQ(file_ == kUntouched, expected.openError != 0);
        Platform::CloseFile(file_);
    }
}

TEST_F(FilesTest, AnOpenFileIsSharedForReadingOnly) {
    const int other = ::open((tree_.Root() / "dir/file").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_SH | LOCK_NB), 0);
    EXPECT_EQ(Open(u"dir/file"), 0U);
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), -1);
    Platform::CloseFile(file_);
    ::close(other);
}

TEST(InvalidFileTest, IsAnErrorOfItsOwnEvenWhenNothingIsRead) {
    std::uint32_t read = 77;
    EXPECT_EQ(Platform::ReadFile(Platform::kInvalidFileHandle, nullptr, 0, read), 6U);
    EXPECT_EQ(read, 77U);
}

}  // namespace
