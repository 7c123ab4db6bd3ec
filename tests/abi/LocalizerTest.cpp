// What only localizers over files answer, and what only those over memory refuse.
#include <sys/file.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <tuple>

#include "AbiHost.h"

namespace {

using namespace abi_host;

/// Makes a file that nobody else may open meanwhile.
std::shared_ptr<std::FILE> LockedFile(const std::filesystem::path& path) {
    std::shared_ptr<std::FILE> file(std::fopen(path.c_str(), "w"), std::fclose);
    EXPECT_EQ(flock(fileno(file.get()), LOCK_EX), 0);
    return file;
}

class LocalizerTest : public AbiTest {
protected:
    LocalizerTest() {
        tree.Write("neutral/Locs/common.lt", "Common = missing");
        EXPECT_EQ(Init(tree.Path() + u"/", tree.Path("neutral"), &listener), kOk);
    }
};

TEST_F(LocalizerTest, MissingOrLockedSourceIsReported) {
    const auto locked = LockedFile(tree.Root() / "neutral/Locs/locked.lt");
    for (const char16_t* scope : {u"sub\\\u00E9", u"locked"}) {
        EXPECT_EQ(MakeLocalizer(scope).Call(kHasString, String16(u"a")), kUnspecifiedError);
    }
}

TEST_F(LocalizerTest, BufferThatDoesNotParseIsNamedByItsScopeOrAsCommon) {
    using namespace std::string_view_literals;
    const std::tuple<ManagerSlot, std::u16string_view, std::u16string_view> cases[] = {
        {kFromBuffer, u"\uFEFFa='x'", u""},
        {kFromBuffers, u"a='x' \0b='y'"sv, u""},
        {kFromBuffers, u"", u"\uFEFFa='x'"},
        {kFromBuffers, u"a='x'", u"b='y'\0"sv}};
    for (const auto& [slot, text, commonText] : cases) {
        Localizer localizer;
        ASSERT_EQ(CreateLocalizer(slot, String16(text), Culture(), nullptr, localizer.Out(),
                                  String16(commonText)),
                  kOk);
        EXPECT_EQ(localizer.Call(kHasString, String16(u"a")), kUnspecifiedError);
    }
}

TEST_F(LocalizerTest, BufferLocalizerHasItsOwnCommonTextsAndImplementsNoOtherOperations) {
    Localizer early, late;
    for (const auto& [localizer, text] : {std::pair(&early, u"early"), std::pair(&late, u"late")}) {
        ASSERT_EQ(CreateLocalizer(kFromBuffers, u"Own = Common", Culture(), nullptr,
                                  localizer->Out(), u"Common = '" + std::u16string(text) + u"'"),
                  kOk);
        EXPECT_EQ(localizer->Get(u"own"), text);
    }
    EXPECT_EQ(early.Get(u"common"), u"early");
    String16 result(u"before");
    for (const std::size_t slot : {kGetString, kGetStream, kHasResource, kGetPath}) {
        EXPECT_EQ(early.Call(slot, nullptr, nullptr), kNotImplemented);
        EXPECT_EQ(early.Call(slot, String16(u"own"), &result), kNotImplemented);
    }
    EXPECT_EQ(result.Text(), u"before");
}

TEST_F(LocalizerTest, PathsAreAnsweredWithoutTexts) {
    tree.Write("de/img/logo.png", "");
    tree.Write("neutral/img/sub/x", "");
    const Localizer localizer = MakeLocalizer(u"img", Culture(13));
    String16 path;
    for (const auto& [key, file] :
         {std::pair(u"logo.png", "de/img/logo.png"), std::pair(u"sub\\x", "neutral/img/sub/x")}) {
        EXPECT_EQ(localizer.Call(kGetPath, String16(key), &path), kOk);
        EXPECT_EQ(path.Text(), tree.Path(file));
        EXPECT_EQ(localizer.Call(kHasResource, String16(key)), kOk);
    }
    EXPECT_EQ(localizer.Call(kGetPath, String16(), &path), kInvalidArgument);
    EXPECT_EQ(localizer.Call(kGetPath, String16(u"none"), &path), kNotFound);
    EXPECT_EQ(localizer.Call(kHasResource, String16(u"none")), kUnspecifiedError);
    const Localizer unsupported = MakeLocalizer(u"img", Culture(38));
    EXPECT_EQ(unsupported.Call(kGetPath, String16(u"a"), &path), kUnspecifiedError);
    EXPECT_THROW(unsupported.Call(kHasResource, String16(u"a")), std::range_error);
    EXPECT_EQ(path.Text(), tree.Path("neutral/img/sub/x"));
}

TEST_F(LocalizerTest, StreamThatCannotBeOpenedIsReported) {
    const auto locked = LockedFile(tree.Root() / "neutral/locked");
    const Localizer localizer = MakeLocalizer(u"");
    void* out = this;
    const auto getStream = [&](const char16_t* key) {
        return localizer.Call(kGetStream, String16(key), &out);
    };
    EXPECT_EQ(localizer.Call(kGetStream, String16(u"locked"), nullptr), kInvalidArgument);
    EXPECT_EQ(getStream(u"none"), kNotFound);
    EXPECT_EQ(getStream(u"locked"), kUnspecifiedError);
    services.allocator.failAt = 1;
    EXPECT_EQ(getStream(u"none"), kUnspecifiedError);
    EXPECT_EQ(out, this);
}

TEST_F(LocalizerTest, StreamReadsAndSeeks) {
    tree.Write("neutral/img/ten", "0123456789");
    Object stream;
    ASSERT_EQ(MakeLocalizer(u"img").Call(kGetStream, String16(u"ten"), stream.Out()), kOk);
    const struct {
        std::int32_t origin;  // start, present position, end
        std::int64_t offset, position;
        std::string_view bytes;
        Result code = kOk;  // of a seek; a failed one moves nothing
    } cases[] = {{0, 0, 0, "0123"},
                 {1, 2, 6, "6789"},
                 {0, 8, 8, "89"},
                 {2, -3, 7, "789"},
                 {2, 100, 110, ""},
                 {0, 4, 4, "4567"},
                 {0, -1, 8, "89", Code(0x80070083)},
                 {1, -11, 10, "", Code(0x80070083)},
                 {1, INT64_MAX, 10, "", kInvalidArgument}};
    for (const auto& [origin, offset, position, bytes, code] : cases) {
        std::int64_t reached = -7;
        EXPECT_EQ(stream.Call(5, origin, offset, &reached), code) << offset;
        EXPECT_EQ(reached, code == kOk ? position : -7);
        EXPECT_EQ(stream.Call(6, &reached), kOk);
        EXPECT_EQ(reached, position);
        char buffer[4];
        std::uint32_t read = 77;
        EXPECT_EQ(stream.Call(3, &buffer[0], 4U, &read), kOk);
        EXPECT_EQ(std::string_view(buffer, read), bytes);
    }
    std::int64_t size = 0;
    EXPECT_EQ(stream.Call(7, &size), kOk);
    EXPECT_EQ(size, 10);
    EXPECT_EQ(stream.Call(5, 0, std::int64_t{3}, nullptr), kOk);
    for (const std::size_t slot : {4U, 8U, 9U}) {
        EXPECT_EQ(stream.Call(slot), kNotSupported);
    }
}

}  // namespace
