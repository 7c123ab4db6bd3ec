// What only localizers over files answer, and what only those over memory refuse.
#include <stdexcept>
#include <tuple>

#include "LockedFile.h"
#include "ModuleHost.h"
#include "SystemTraits.h"

namespace {

using namespace lm_test;
using qor::string16_t;

class LocalizerTest : public ModuleHost {
protected:
    LocalizerTest() {
        tree.Write("neutral/Locs/common.lt", "Common = missing");
        EXPECT_EQ(Init(tree.Path() + u"/", tree.Path("neutral"), listener), qor::rcOk);
    }
};

TEST_F(LocalizerTest, MissingOrLockedSourceIsReported) {
    const auto locked = LockedFile(tree.Root() / "neutral/Locs/locked.lt");
    for (const char16_t* scope : {u"sub\\\u00E9", u"locked"}) {
        EXPECT_EQ(MakeLocalizer(scope)->HasString(u"a"), qor::rcUnspecifiedError);
    }
}

TEST_F(LocalizerTest, ResultIsWrittenWithTheMemoryOfTheCallersString) {
    tree.Write("neutral/Locs/common.lt", "");
    tree.Write("neutral/Locs/app.lt", "T7='1234567' T8='12345678' T15='123456789012345'");
    const auto localizer = MakeLocalizer(u"app");
    EXPECT_EQ(localizer->HasString(u"t7"), qor::rcOk);
    const auto memory = Make<FakeAllocator>();
    for (FakeAllocator* const source : {memory.get(), static_cast<FakeAllocator*>(nullptr)}) {
        string16_t text{qor::Allocator<char16_t>(source)};
        for (const auto& [key, result, capacity] :
             {std::tuple(u"t7", u"1234567", 7U), std::tuple(u"t8", u"12345678", 14U),
              std::tuple(u"t15", u"123456789012345", 28U)}) {
            ASSERT_EQ(localizer->GetString(key, text), qor::rcOk);
            EXPECT_EQ(text.view(), result);
            EXPECT_EQ(text.capacity(), capacity);
            EXPECT_EQ(memory->Live(), source != nullptr && capacity > 7 ? 1 : 0);
        }
        EXPECT_EQ(text.get_allocator().source(), source);
    }
    string16_t text(u"before", qor::Allocator<char16_t>(memory.get()));
    memory->exhausted = true;
    EXPECT_EQ(localizer->GetString(u"t8", text), qor::rcUnspecifiedError);
    EXPECT_EQ(text.view(), u"before");
}

TEST_F(LocalizerTest, BufferLocalizerHasItsOwnCommonTextsAndImplementsNoOtherOperations) {
    qor::objptr_t<ILocalizer> early;
    qor::objptr_t<ILocalizer> late;
    string16_t text;
    for (const auto& [localizer, common] : {std::pair(&early, u"early"), {&late, u"late"}}) {
        ASSERT_EQ(CreateLocalizer(Kind::Buffers, u"Own = Common", MakeCulture(8), nullptr,
                                  localizer->Ref(), u"Common = '" + std::u16string(common) + u"'"),
                  qor::rcOk);
        EXPECT_EQ((*localizer)->GetResolvedString(u"own", text, nullptr), qor::rcOk);
        EXPECT_EQ(text.view(), common);
    }
    EXPECT_EQ(early->GetResolvedString(u"common", text, nullptr), qor::rcOk);
    EXPECT_EQ(text.view(), u"early");
    qor::objptr_t<qor::IIO> stream;
    EXPECT_EQ(early->GetString(u"own", text), qor::rcNotImplemented);
    EXPECT_EQ(early->GetStream(u"own", stream.Ref()), qor::rcNotImplemented);
    EXPECT_EQ(early->GetStream(u"own", nullptr), qor::rcNotImplemented);
    EXPECT_EQ(early->HasResource(u"own"), qor::rcNotImplemented);
    EXPECT_EQ(early->GetPath(u"", text), qor::rcNotImplemented);
    EXPECT_EQ(text.view(), u"early");
}

TEST_F(LocalizerTest, FilesAreFoundWithoutTexts) {
    tree.Write("de-at-x/img/sub/logo.png", "");
    const auto localizer = MakeLocalizer(u"img", MakeCulture(13, "at", "x"));
    string16_t path;
    EXPECT_EQ(localizer->GetPath(u"sub\\logo.png", path), qor::rcOk);
    EXPECT_EQ(std::filesystem::path(path.view()), tree.Path("de-at-x/img/sub/logo.png"));
    EXPECT_EQ(localizer->HasResource(u"sub\\logo.png"), qor::rcOk);
    EXPECT_EQ(localizer->GetPath(u"", path), qor::rcInvalidArgument);
    EXPECT_EQ(localizer->GetPath(u"none", path), qor::rcNotFound);
    EXPECT_EQ(localizer->HasResource(u"none"), qor::rcUnspecifiedError);
    const auto unsupported = MakeLocalizer(u"img", MakeCulture(38));
    EXPECT_EQ(unsupported->GetPath(u"a", path), qor::rcUnspecifiedError);
    ExpectLeavesOr<std::range_error>(qor::rcUnknownException,
                                     [&] { return unsupported->HasResource(u"a"); });
    EXPECT_EQ(std::filesystem::path(path.view()), tree.Path("de-at-x/img/sub/logo.png"));
}

TEST_F(LocalizerTest, StreamThatCannotBeOpenedIsReported) {
    const auto locked = LockedFile(tree.Root() / "neutral/locked");
    const auto localizer = MakeLocalizer(u"");
    auto* const untouched = reinterpret_cast<qor::IIO*>(this);
    qor::IIO* out = untouched;
    EXPECT_EQ(localizer->GetStream(u"locked", nullptr), qor::rcInvalidArgument);
    EXPECT_EQ(localizer->GetStream(u"none", &out), qor::rcNotFound);
    EXPECT_EQ(localizer->GetStream(u"locked", &out), qor::rcUnspecifiedError);
    allocator.failAt = 1;
    EXPECT_EQ(localizer->GetStream(u"none", &out), qor::rcUnspecifiedError);
    EXPECT_EQ(out, untouched);
}

TEST_F(LocalizerTest, StreamReadsAndSeeks) {
    tree.Write("neutral/img/ten", "0123456789");
    qor::objptr_t<qor::IIO> stream;
    ASSERT_EQ(MakeLocalizer(u"img")->GetStream(u"ten", stream.Ref()), qor::rcOk);
    const struct {
        std::int32_t origin;  // start, present position, end; others are as start
        std::int64_t offset, position;
        std::string_view bytes;
        qor::result_t code = qor::rcOk;  // of a seek; a failed one moves nothing
    } cases[] = {{0, 0, 0, "0123"},
                 {1, 2, 6, "6789"},
                 {7, 8, 8, "89"},
                 {2, -3, 7, "789"},
                 {2, 100, 110, ""},
                 {0, 4, 4, "4567"},
                 {0, -1, 8, "89", qor::detail::ResultCode(0x80070083)},
                 {1, -11, 10, "", qor::detail::ResultCode(0x80070083)},
                 {1, INT64_MAX, 10, "", kEndlessSeek}};
    char buffer[4];
    std::uint32_t read = 77;
    std::int64_t reached = 0;
    for (const auto& [origin, offset, position, bytes, code] : cases) {
        reached = -7;
        EXPECT_EQ(stream->Seek(origin, offset, &reached), code) << offset;
        EXPECT_EQ(reached, code == qor::rcOk ? position : -7);
        EXPECT_EQ(stream->GetPosition(&reached), qor::rcOk);
        EXPECT_EQ(reached, position);
        EXPECT_EQ(stream->Read(buffer, 4, nullptr), qor::rcInvalidArgument);
        EXPECT_EQ(stream->Read(buffer, 4, &read), qor::rcOk);
        EXPECT_EQ(std::string_view(buffer, read), bytes);
    }
    EXPECT_EQ(stream->Seek(qor::seek_origin::Start, 3, nullptr), qor::rcOk);
    EXPECT_EQ(stream->GetPosition(nullptr), qor::rcInvalidArgument);
    EXPECT_EQ(stream->GetSize(nullptr), qor::rcInvalidArgument);
    EXPECT_EQ(stream->GetSize(&reached), qor::rcOk);
    EXPECT_EQ(reached, 10);
    EXPECT_EQ(stream->Write(buffer, 1, &read), qor::rcNotSupported);
    EXPECT_EQ(stream->SetSize(1), qor::rcNotSupported);
    EXPECT_EQ(stream->Flush(), qor::rcNotSupported);
}

}  // namespace
