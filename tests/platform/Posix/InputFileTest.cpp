// Files and path attributes of the platform layer.
#include "InputFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <vector>

#include "TempTree.h"

namespace {

namespace fs = std::filesystem;
using namespace std::literals;

/// One of the system's calls; the linker sends it to the test first.
struct SystemCall {
    std::vector<int> errors = {};  // of the next calls, in turn; after them the system answers
    std::function<void()> before = [] {};
    int count = 0;

    template <class Real>
    auto operator()(Real real) -> decltype(real()) {
        const auto index = static_cast<std::size_t>(count++);
        before();
        errno = index < errors.size() ? errors[index] : 0;
        return errno != 0 ? -1 : real();
    }
};

SystemCall openCall;
SystemCall flockCall;
SystemCall readCall;
int lastFile = -1;
std::size_t longestRead = 100;

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" {
int __real_open(const char* name, int flags, ...);
int __real_flock(int file, int operation);
ssize_t __real_read(int file, void* destination, std::size_t wanted);

int __wrap_open(const char* name, int flags, ...) {
    return lastFile = openCall([&] { return __real_open(name, flags); });
}
int __wrap_open64(const char* name, int flags, ...) __attribute__((alias("__wrap_open")));

int __wrap_flock(int file, int operation) {
    return flockCall([&] { return __real_flock(file, operation); });
}

ssize_t __wrap_read(int file, void* destination, std::size_t wanted) {
    return readCall([&] { return __real_read(file, destination, std::min(wanted, longestRead)); });
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

/// One of everything that a name can mean.
class InputFileTest : public testing::Test {
protected:
    InputFileTest() {
        tree_.Write("dir/file", "0123456789");
        tree_.Write("\xD0\xBA\xD0\xBB\xD1\x8E\xD1\x87 \xF0\x9F\x94\x91", "key");
        fs::create_symlink("dir", tree_.Root() / "dirlink");
        fs::create_symlink("dir/file", tree_.Root() / "filelink");
        fs::create_symlink("nowhere", tree_.Root() / "dangling");
        fs::create_symlink("/dev/null", tree_.Root() / "device");
        EXPECT_EQ(::mkfifo((tree_.Root() / "fifo").c_str(), 0600), 0);
    }

    std::u16string Path(std::u16string_view name) const {
        return tree_.Path().append(u"/").append(name);
    }

    lm_test::TempTree tree_;
};

TEST_F(InputFileTest, AttributesDoNotFollowLinksAndNothingButRegularFilesIsTouched) {
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
                 {u"device", 0, false, true, 5},
                 {u"dangling", 0, false, true, 2},
                 {u"missing", 2, true, true, 2},
                 {u"dir/file/x", 3, true, true, 3},
                 {u"high \xD800", 123, true, true, 123},
                 {u"dir/file\0"sv, 123, true, true, 123}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.name));
        Platform::PathAttributes found = {true, true};
        EXPECT_EQ(Platform::ReadPathAttributes(Path(expected.name), found), expected.error);
        EXPECT_EQ(found.isDirectory, expected.isDirectory);
        EXPECT_EQ(found.isLink, expected.isLink);
        openCall = {};
        EXPECT_EQ(Platform::InputFile().Open(Path(expected.name)), expected.openError);
        EXPECT_EQ(openCall.count, expected.openError == 0 ? 1 : 0);
    }
}

TEST_F(InputFileTest, WhatFailsToOpenIsClosedAndWhatOpensIsShared) {
    const auto becomesAFifo = [this] {
        fs::rename(tree_.Root() / "fifo", tree_.Root() / "dir/file");
    };
    const struct {
        SystemCall open, flock;
        Platform::ErrorNumber error;
    } cases[] = {{{{EINTR, EINTR}}, {{EINTR}}, 0}, {{}, {{ENOLCK}}, 0},
                 {{{EMFILE}}, {}, 1450},           {{{ENFILE}}, {}, 1450},
                 {{}, {{EINTR, EWOULDBLOCK}}, 32}, {{{}, becomesAFifo}, {}, 5}};
    for (const auto& expected : cases) {
        const int other = ::open((tree_.Root() / "dir/file").c_str(), O_RDONLY | O_CLOEXEC);
        ::flock(other, LOCK_SH | LOCK_NB);
        openCall = expected.open;
        flockCall = expected.flock;
        Platform::InputFile file;
        EXPECT_EQ(file.Open(Path(u"dir/file")), expected.error);
        openCall = {};
        EXPECT_EQ(::fcntl(lastFile, F_GETFD), expected.error == 0 ? FD_CLOEXEC : -1);
        EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB) == -1,
                  expected.error == 0 && expected.flock.errors[0] == EINTR);
        ::close(other);
    }
}

TEST_F(InputFileTest, ReadsGoOnUntilAllIsThere) {
    Platform::InputFile file;
    std::string text(12, '-');
    std::uint32_t read = 77;
    EXPECT_EQ(file.Read(text.data(), 0, read), 6U) << "no file is an error even for no bytes";
    EXPECT_EQ(read, 77U);
    ASSERT_EQ(file.Open(Path(u"dir/file")), 0U);
    const int first = lastFile;
    ASSERT_EQ(file.Open(Path(u"dir/file")), 0U);
    EXPECT_EQ(lastFile, first) << "closed before the file is opened anew";
    readCall = {{EINTR}};
    longestRead = 3;
    EXPECT_EQ(file.Read(text.data(), 8, read), 0U);
    EXPECT_EQ(text.substr(0, read) + text.substr(8), "01234567----");
}

}  // namespace
