// Files, attributes and paths of the platform layer.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <limits>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "Platform.h"
#include "TempTree.h"

namespace {

namespace fs = std::filesystem;
using namespace std::literals;
using lm_test::TempTree;

constexpr Platform::FileHandle kUntouched = -7;

Platform::ErrorNumber Open(std::u16string_view path, Platform::FileHandle& file) {
    return Platform::OpenFile(path, Platform::FileAccess::Read, Platform::FileSharing::Read,
                              Platform::FileDisposition::OpenExisting, file);
}

/// One of everything that a name can mean.
class FilesTest : public testing::Test {
protected:
    FilesTest() {
        tree_.Write("dir/file", "0123456789");
        tree_.Write("\xD0\xBA\xD0\xBB\xD1\x8E\xD1\x87 \xF0\x9F\x94\x91", "key");
        fs::create_directory_symlink("dir", tree_.Root() / "dirlink");
        fs::create_symlink("dir/file", tree_.Root() / "filelink");
        fs::create_symlink("nowhere", tree_.Root() / "dangling");
        fs::create_symlink("fifo", tree_.Root() / "fifolink");
        fs::create_symlink("/dev/null", tree_.Root() / "device");
        EXPECT_EQ(::mkfifo((tree_.Root() / "fifo").c_str(), 0600), 0);
    }

    std::u16string Path(std::u16string_view name) const {
        return tree_.Path().append(u"/").append(name);
    }

    TempTree tree_;
};

TEST_F(FilesTest, AttributesTellDirectoriesAndLinksWithoutFollowing) {
    const struct {
        std::u16string name;
        Platform::ErrorNumber error;
        bool isDirectory, isLink;
    } cases[] = {{u"dir", 0, true, false},       {u"dir/file", 0, false, false},
                 {u"dirlink", 0, false, true},   {u"dangling", 0, false, true},
                 {u"missing", 2, true, true},    {u"missing/file", 2, true, true},
                 {u"dir/file/x", 3, true, true}, {u"\xD800", 123, true, true}};
    for (const auto& expected : cases) {
        Platform::FileAttributes found = {true, true};
        SCOPED_TRACE(testing::PrintToString(expected.name));
        EXPECT_EQ(Platform::GetFileAttributes(Path(expected.name), found), expected.error);
        EXPECT_EQ(found.isDirectory, expected.isDirectory);
        EXPECT_EQ(found.isLink, expected.isLink);
    }
}

TEST_F(FilesTest, OnlyRegularFilesOpenAndNothingBlocks) {
    const std::map<Platform::ErrorNumber, std::vector<std::u16string>> cases = {
        {0, {u"dir/file", u"filelink", u"dirlink/file", u"\u043A\u043B\u044E\u0447 \U0001F511"}},
        {2, {u"missing", u"dangling"}},
        {3, {u"dir/file/x"}},
        {5, {u"dir", u"fifo", u"fifolink", u"device"}},
        {123, {u"\xDC00", u"high at the end \xD800", u"dir/file\0"s}}};
    for (const auto& [error, names] : cases) {
        for (const std::u16string& name : names) {
            Platform::FileHandle file = kUntouched;
            EXPECT_EQ(Open(Path(name), file), error) << testing::PrintToString(name);
            EXPECT_EQ(file == kUntouched, error != 0);
            if (file != kUntouched) {
                Platform::CloseFile(file);
            }
        }
    }
}

TEST_F(FilesTest, AnExclusiveLockHeldElsewhereIsASharingViolation) {
    const int other = ::open((tree_.Root() / "dir/file").c_str(), O_RDONLY | O_CLOEXEC);
    Platform::FileHandle file = kUntouched;
    ASSERT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(Open(Path(u"dir/file"), file), 32U);
    EXPECT_EQ(file, kUntouched);
    ASSERT_EQ(::flock(other, LOCK_SH | LOCK_NB), 0);
    EXPECT_EQ(Open(Path(u"dir/file"), file), 0U);
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), -1) << "an open file is shared for reading only";
    Platform::CloseFile(file);
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0) << "a closed file holds no lock";
    ::close(other);
}

TEST_F(FilesTest, SeeksAndReads) {
    using Origin = Platform::SeekOrigin;
    constexpr std::int64_t kFar = std::numeric_limits<std::int64_t>::max();
    Platform::FileHandle file = kUntouched;
    ASSERT_EQ(Open(Path(u"dir/file"), file), 0U);
    const struct {
        Origin origin;
        std::int64_t offset;
        Platform::ErrorNumber error;
        std::int64_t position;  // after an error the one before
        std::string_view bytes;
    } cases[] = {
        {Origin::Start, 0, 0, 0, "0123"},    {Origin::Current, 2, 0, 6, "6789"},
        {Origin::Start, 8, 0, 8, "89"},      {Origin::End, 0, 0, 10, ""},
        {Origin::End, -3, 0, 7, "789"},      {Origin::End, 100, 0, 110, ""},
        {Origin::Start, 4, 0, 4, "4567"},    {Origin::Start, -1, 131, 8, "89"},
        {Origin::Current, -11, 131, 10, ""}, {Origin::End, -11, 131, 10, ""},
        {Origin::Current, kFar, 87, 10, ""},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.offset);
        std::int64_t position = kUntouched;
        EXPECT_EQ(Platform::SeekFile(file, expected.origin, expected.offset, position),
                  expected.error);
        EXPECT_EQ(position, expected.error != 0 ? kUntouched : expected.position);
        ASSERT_EQ(Platform::SeekFile(file, Origin::Current, 0, position), 0U);
        EXPECT_EQ(position, expected.position);
        char bytes[4];
        std::uint32_t read = 77;
        EXPECT_EQ(Platform::ReadFile(file, bytes, sizeof bytes, read), 0U);
        EXPECT_EQ(std::string_view(bytes, read), expected.bytes);
    }
    std::int64_t size = kUntouched;
    EXPECT_EQ(Platform::GetFileSize(file, size), 0U);
    EXPECT_EQ(size, 10);
    Platform::CloseFile(file);
}

TEST(FileReadTest, GoesOnAfterAPartialReadUntilTheFileEnds) {
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    ASSERT_EQ(::write(ends[1], "abc", 3), 3);
    std::thread rest([&] {
        std::this_thread::sleep_for(20ms);
        EXPECT_EQ(::write(ends[1], "def", 3), 3);
        ::close(ends[1]);
    });
    char bytes[10];
    std::uint32_t read = 0;
    EXPECT_EQ(Platform::ReadFile(ends[0], bytes, sizeof bytes, read), 0U);
    EXPECT_EQ(std::string_view(bytes, read), "abcdef");
    rest.join();
    Platform::CloseFile(ends[0]);
}

TEST(FileReadTest, AnInvalidHandleIsAnErrorOfItsOwn) {
    char byte = 0;
    std::uint32_t read = 77;
    std::int64_t position = 77;
    constexpr auto kInvalid = Platform::kInvalidFileHandle;
    for (const std::uint32_t wanted : {0U, 1U}) {
        EXPECT_EQ(Platform::ReadFile(kInvalid, &byte, wanted, read), 6U) << wanted;
    }
    EXPECT_EQ(Platform::SeekFile(kInvalid, Platform::SeekOrigin::Start, -1, position), 6U);
    EXPECT_EQ(Platform::GetFileSize(kInvalid, position), 6U);
    EXPECT_EQ(read, 77U);
    EXPECT_EQ(position, 77);
}

TEST(PathTest, BothSeparatorsBecomeTheSystemsOwn) {
    EXPECT_EQ(Platform::NativePath(u"C:\\loc/de\\\\x"), u"C:/loc/de//x");
    EXPECT_EQ(Platform::kPathSeparator, u'/');
}

}  // namespace
