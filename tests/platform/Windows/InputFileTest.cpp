// Files and path attributes of the platform layer, by the system's own calls.
#include "InputFile.h"

#include <gtest/gtest.h>

#include <string>

#include "System.h"
#include "TempTree.h"
#include "qor/rtl/error_handling/result_from_platform_error.h"
#include "qor/rtl/filesystem/path_attributes.h"

namespace {

using namespace std::literals;

class InputFileTest : public testing::Test {
protected:
    InputFileTest() {
        tree_.Write("dir/file", "0123456789");
        tree_.Write("\xD0\xBA\xD0\xBB\xD1\x8E\xD1\x87 \xF0\x9F\x94\x91", "key");
    }

    std::u16string Path(std::u16string_view name) const {
        return tree_.Path().append(u"\\").append(name);
    }

    static std::wstring Wide(const std::u16string& text) { return {text.begin(), text.end()}; }

    lm_test::TempTree tree_;
};

Platform::ErrorNumber OpenError(const std::u16string& path) {
    return Platform::InputFile().Open(path);
}

TEST_F(InputFileTest, NothingButFilesIsOpened) {
    const struct {
        std::u16string_view name;
        Platform::ErrorNumber error;  // of the attributes, which then stay as they were
        bool isDirectory;
        Platform::ErrorNumber openError;
    } cases[] = {{u"dir\\file", 0, false, 0},
                 {u"dir/file", 0, false, 0},
                 {u"\u043A\u043B\u044E\u0447 \U0001F511", 0, false, 0},
                 {u"dir", 0, true, ERROR_ACCESS_DENIED},
                 {u"missing", ERROR_FILE_NOT_FOUND, true, ERROR_FILE_NOT_FOUND},
                 {u"missing\\x", ERROR_PATH_NOT_FOUND, true, ERROR_PATH_NOT_FOUND},
                 {u"dir\\fi|le", ERROR_INVALID_NAME, true, ERROR_INVALID_NAME},
                 {u"dir\\file\0"sv, ERROR_INVALID_NAME, true, ERROR_INVALID_NAME}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.name));
        Platform::PathAttributes found = {true, true};
        EXPECT_EQ(Platform::ReadPathAttributes(Path(expected.name), found), expected.error);
        EXPECT_EQ(found.isDirectory, expected.isDirectory);
        EXPECT_EQ(found.isLink, expected.error != 0);
        EXPECT_EQ(OpenError(Path(expected.name)), expected.openError);
    }
}

TEST_F(InputFileTest, ALinkIsNoDirectoryAndIsFollowedAllTheSame) {
    Platform::PathAttributes found = {};
    EXPECT_EQ(Platform::ReadPathAttributes(LINK, found), 0U);
    EXPECT_TRUE(found.isLink);
    EXPECT_EQ(qor::filesystem::IsDirectory(LINK), qor::rcFalse);
    EXPECT_EQ(qor::filesystem::IsDirectory(LINK "\\..\\linked"), qor::rcOk);
    EXPECT_EQ(Platform::ReadPathAttributes(LINK "\\file", found), 0U);
    EXPECT_FALSE(found.isLink || found.isDirectory);
    EXPECT_EQ(OpenError(LINK "\\file"), 0U);
}

TEST_F(InputFileTest, DevicesAndPipesAreRefusedAndNeverWaitedFor) {
    const std::u16string pipe =
        u"\\\\.\\pipe\\" + Path(u"").substr(Path(u"").rfind(u"lm_test"), 14);
    const HANDLE made = ::CreateNamedPipeW(Wide(pipe).c_str(), PIPE_ACCESS_DUPLEX,
                                           PIPE_TYPE_BYTE | PIPE_WAIT, 1, 0, 0, 0, nullptr);
    ASSERT_NE(made, INVALID_HANDLE_VALUE);
    for (const std::u16string& name : {pipe, u"NUL"s, Path(u"NUL")}) {
        EXPECT_EQ(OpenError(name), Platform::ErrorNumber{ERROR_ACCESS_DENIED})
            << testing::PrintToString(name);
    }
    ::CloseHandle(made);
    for (const std::u16string& name : {u"CON"s, Path(u"con.lt")}) {
        EXPECT_NE(OpenError(name), 0U);  // a process without a console has none to open
    }
}

TEST_F(InputFileTest, ReadersShareAFileAndWritersKeepItForThemselves) {
    const std::wstring file = Wide(Path(u"dir\\file"));
    Platform::InputFile first;
    Platform::InputFile second;
    EXPECT_EQ(first.Open(Path(u"dir\\file")), 0U);
    EXPECT_EQ(second.Open(Path(u"dir\\file")), 0U);
    EXPECT_EQ(::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                            nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(first.Open(Path(u"missing")), 2U) << "and the one before is closed";
    EXPECT_EQ(second.Open(Path(u"missing")), 2U);
    const HANDLE writer = ::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(writer, INVALID_HANDLE_VALUE);
    EXPECT_EQ(first.Open(Path(u"dir\\file")), Platform::ErrorNumber{ERROR_SHARING_VIOLATION});
    ::CloseHandle(writer);
}

TEST_F(InputFileTest, WithoutAnOpenFileTheHandleIsInvalid) {
    Platform::InputFile file;
    char byte = 0;
    std::uint32_t read = 77;
    std::int64_t number = 77;
    EXPECT_EQ(file.Read(&byte, 1, read), Platform::ErrorNumber{ERROR_INVALID_HANDLE});
    EXPECT_EQ(file.GetSize(number), Platform::ErrorNumber{ERROR_INVALID_HANDLE});
    EXPECT_EQ(file.Seek(Platform::InputFile::Origin::Start, 0, number),
              Platform::ErrorNumber{ERROR_INVALID_HANDLE});
    EXPECT_EQ(read + number, 154);
}

TEST_F(InputFileTest, LongPathsAreTakenAsTheyWereJoined) {
    std::u16string directory = tree_.Path();
    while (directory.size() < 400) {
        directory += u"\\a-directory-whose-name-is-rather-long";
        ASSERT_NE(::CreateDirectoryW((LR"(\\?\)" + Wide(directory)).c_str(), nullptr), FALSE);
    }
    const HANDLE made = ::CreateFileW((LR"(\\?\)" + Wide(directory) + L"\\file").c_str(),
                                      GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    ASSERT_NE(made, INVALID_HANDLE_VALUE);
    ::CloseHandle(made);
    for (const std::u16string_view name : {u"\\file"sv, u"/file"sv, u"\\x\\..\\.\\file"sv}) {
        Platform::PathAttributes found = {true, true};
        EXPECT_EQ(Platform::ReadPathAttributes(directory + std::u16string(name), found), 0U);
        EXPECT_FALSE(found.isDirectory || found.isLink);
        EXPECT_EQ(OpenError(directory + std::u16string(name)), 0U);
    }
    EXPECT_EQ(OpenError(directory + u"\\none"), 2U);
    std::wstring remove = LR"(\\?\)" + Wide(directory);
    ::DeleteFileW((remove + L"\\file").c_str());
    for (; remove.size() > tree_.Path().size() + 4; remove.erase(remove.rfind(L'\\'))) {
        ::RemoveDirectoryW(remove.c_str());
    }
}

TEST(ErrorNumberTest, HaveTheCodesOfTheSystem) {
    const std::pair<Platform::ErrorNumber, qor::result_t> cases[] = {
        {ERROR_SUCCESS, qor::rcOk},
        {ERROR_FILE_NOT_FOUND, qor::rcFileNotFound},
        {ERROR_PATH_NOT_FOUND, qor::rcPathNotFound},
        {ERROR_BAD_NETPATH, qor::rcPathNotFound},
        {ERROR_DIRECTORY, qor::rcPathNotFound},
        {ERROR_ACCESS_DENIED, qor::rcAccessDenied},
        {ERROR_INVALID_HANDLE, qor::rcInvalidHandle},
        {ERROR_NOT_ENOUGH_MEMORY, qor::rcOutOfMemory},
        {ERROR_NOT_READY, qor::rcNotReady},
        {ERROR_GEN_FAILURE, qor::rcUnspecifiedError},
        {ERROR_SHARING_VIOLATION, qor::rcSharingViolation},
        {ERROR_LOCK_VIOLATION, qor::rcSharingViolation},
        {ERROR_NOT_SUPPORTED, qor::rcNotSupported},
        {ERROR_INVALID_PARAMETER, qor::rcInvalidArgument},
        {ERROR_DISK_FULL, qor::rcOutOfSpace},
        {ERROR_INVALID_NAME, qor::rcInvalidPathName},
        {ERROR_NO_SYSTEM_RESOURCES, qor::rcInsufficientResources},
        {ERROR_OPERATION_ABORTED, qor::rcOperationCancelled},
        {ERROR_TIMEOUT, qor::rcOperationTimeout},
        {ERROR_PIPE_BUSY, qor::detail::ResultCode(0x800700E7)},
        {ERROR_NEGATIVE_SEEK, qor::detail::ResultCode(0x80070083)},
    };
    for (const auto& [error, code] : cases) {
        EXPECT_EQ(qor::ResultFromPlatformError(error), code) << error;
    }
}

}  // namespace
