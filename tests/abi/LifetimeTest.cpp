// Who holds what and for how long, and whose memory texts live in.
#include "AbiHost.h"

namespace {

using namespace abi_host;

class LifetimeTest : public AbiTest {
protected:
    LifetimeTest() {
        tree.Write("neutral/Locs/common.lt", "");
        tree.Write("neutral/Locs/app.lt",
                   "T7 = '1234567' T8 = '12345678' T15 = '123456789012345' P = $p");
        tree.Write("neutral/app/file", "bytes");
        EXPECT_EQ(manager.InitEx(tree.Path(), u"", &listener), kOk);
    }
};

TEST_F(LifetimeTest, LocalizerOutlivesTheManagerAndStreamsOutliveBoth) {
    resolver.values[u"p"] = u"a text that needs memory";
    Stream stream;
    {
        Localizer early = MakeLocalizer(u"app");
        const Localizer late = MakeLocalizer(u"app");
        EXPECT_EQ(early.References(), 1U);
        EXPECT_EQ(early.Get(u"p"), resolver.values[u"p"]);
        EXPECT_EQ(resolver.References(), 3U);
        EXPECT_EQ(listener.References(), 4U);
        manager.Reset();
        early.Reset();
        EXPECT_EQ(resolver.References(), 2U);
        EXPECT_EQ(listener.References(), 2U);
        EXPECT_EQ(late.Get(u"p"), resolver.values[u"p"]);
        ASSERT_EQ(late.GetStream(u"file", stream.Out()), kOk);
    }
    EXPECT_EQ(resolver.References(), 1U);
    EXPECT_EQ(listener.References(), 1U);
    services.ExpectHeldBy(1);
    char bytes[8];
    std::uint32_t read = 0;
    EXPECT_EQ(stream.Read(bytes, sizeof bytes, &read), kOk);
    EXPECT_EQ(std::string(bytes, read), "bytes");
}

TEST_F(LifetimeTest, NothingIsLostWhereverTheAllocatorFails) {
    bool failed = true;
    for (int call = 1; failed; ++call) {
        services.allocator.failAt = call;
        Manager fresh;
        Localizer localizer;
        Stream stream;
        failed = Create(kManagerClass, kManagerId, fresh) != kOk ||
                 fresh.Init(tree.Path()) != kOk ||
                 fresh.CreateLocalizer(u"app", Culture(), &resolver, localizer.Out()) != kOk ||
                 localizer.GetStream(u"file", stream.Out()) != kOk;
        EXPECT_EQ(services.tracer.Take().empty(), !failed);
    }
    services.allocator.failAt = 0;
    services.ExpectHeldBy(1);
}

TEST_F(LifetimeTest, ResultIsWrittenWithTheMemoryOfTheCallersString) {
    Allocator memory;
    const Localizer localizer = MakeLocalizer(u"app");
    for (Allocator* const source : {&memory, static_cast<Allocator*>(nullptr)}) {
        String16 text(u"", source);
        ASSERT_EQ(localizer.GetString(u"t7", text), kOk);
        EXPECT_TRUE(text.IsInline());
        EXPECT_EQ(text.capacity, 7U);
        ASSERT_EQ(localizer.GetString(u"t8", text), kOk);
        EXPECT_EQ(text.Text(), u"12345678");
        EXPECT_FALSE(text.IsInline());
        EXPECT_EQ(text.capacity, 14U);
        const char16_t* const storage = text.data;
        ASSERT_EQ(localizer.GetString(u"t7", text), kOk);
        EXPECT_EQ(text.data, storage);
        ASSERT_EQ(localizer.GetString(u"t15", text), kOk);
        EXPECT_EQ(text.Text(), u"123456789012345");
        EXPECT_EQ(text.allocator, source);
        EXPECT_EQ(memory.Live(), source != nullptr ? 1 : 0);
    }
    String16 text(u"before", &memory);
    memory.failAt = 1;
    EXPECT_EQ(localizer.GetString(u"t8", text), kUnspecifiedError);
    EXPECT_EQ(text.Text(), u"before");
    EXPECT_EQ(listener.Take(), std::vector<std::string>(
                                   {"localization manager error: cannot get string for key: t8, "
                                    "error: std::bad_alloc"}));
}

}  // namespace
