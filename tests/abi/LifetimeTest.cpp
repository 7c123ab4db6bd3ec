// Who holds what and for how long, and whose memory texts live in.
#include <tuple>

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
        EXPECT_EQ(Init(tree.Path(), u"", &listener), kOk);
    }
};

TEST_F(LifetimeTest, LocalizerOutlivesTheManagerAndStreamsOutliveBoth) {
    resolver.values[u"p"] = u"a text that needs memory";
    Object stream;
    {
        Localizer early = MakeLocalizer(u"app");
        const Localizer late = MakeLocalizer(u"app");
        EXPECT_EQ(early.References(), 1U);
        EXPECT_EQ(early.Get(u"p"), resolver.values[u"p"]);
        EXPECT_EQ(resolver.References(), 3U);
        EXPECT_EQ(listener.References(), 4U);
        manager.Reset();
        early.Reset();
        EXPECT_EQ(resolver.References() + listener.References(), 4U);
        EXPECT_EQ(late.Get(u"p"), resolver.values[u"p"]);
        ASSERT_EQ(late.Call(kGetStream, String16(u"file"), stream.Out()), kOk);
    }
    EXPECT_EQ(resolver.References() + listener.References(), 2U);
    services.ExpectHeldBy(1);
    char bytes[8];
    std::uint32_t read = 0;
    EXPECT_EQ(stream.Call(3, &bytes[0], 8U, &read), kOk);
    EXPECT_EQ(std::string(bytes, read), "bytes");
}

TEST_F(LifetimeTest, ResultIsWrittenWithTheMemoryOfTheCallersString) {
    Allocator memory;
    const Localizer localizer = MakeLocalizer(u"app");
    for (Allocator* const source : {&memory, static_cast<Allocator*>(nullptr)}) {
        String16 text(u"", source);
        for (const auto& [key, result, capacity] :
             {std::tuple(u"t7", u"1234567", 7U), std::tuple(u"t8", u"12345678", 14U),
              std::tuple(u"t15", u"123456789012345", 28U)}) {
            ASSERT_EQ(localizer.Call(kGetString, String16(key), &text), kOk);
            EXPECT_EQ(text.Text(), result);
            EXPECT_EQ(text.IsInline(), capacity == 7);
            EXPECT_EQ(text.capacity, capacity);
            EXPECT_EQ(memory.Live(), source != nullptr && capacity > 7 ? 1 : 0);
        }
        EXPECT_EQ(text.allocator, source);
    }
    String16 text(u"before", &memory);
    memory.failAt = 1;
    EXPECT_EQ(localizer.Call(kGetString, String16(u"t8"), &text), kUnspecifiedError);
    EXPECT_EQ(text.Text(), u"before");
}

}  // namespace
