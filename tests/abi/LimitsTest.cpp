// What a text may ask for at most: at and above each limit, on a stack as small as a host's may be.
#include <pthread.h>

#include <thread>

#include "AbiHost.h"

namespace {

using namespace abi_host;

#ifdef NDEBUG
constexpr std::size_t kStackSize = std::size_t{256} * 1024;
#else  // frames of sanitized builds are several times as large
constexpr std::size_t kStackSize = std::size_t{8} * 1024 * 1024;
#endif

/// While it lives, new threads get a stack of that size.
class SmallStacks {
public:
    SmallStacks() {
        pthread_attr_t small;
        pthread_getattr_default_np(&before_);
        pthread_attr_init(&small);
        EXPECT_EQ(pthread_attr_setstacksize(&small, kStackSize), 0);
        EXPECT_EQ(pthread_setattr_default_np(&small), 0);
        pthread_attr_destroy(&small);
    }
    SmallStacks(const SmallStacks&) = delete;
    SmallStacks& operator=(const SmallStacks&) = delete;
    ~SmallStacks() {
        pthread_setattr_default_np(&before_);
        pthread_attr_destroy(&before_);
    }

private:
    pthread_attr_t before_;
};

struct LimitsTest : AbiTest {
    LimitsTest() {
        tree.Write("neutral/Locs/common.lt", "");
        tree.Write("neutral/Locs/app.lt", "");
        EXPECT_EQ(Init(tree.Path(), u"", &listener), kOk);
    }
};

std::string Nested(int depth, const std::string& open, std::string text, const std::string& close) {
    for (int i = 0; i < depth; ++i) {
        text = std::string(open).append(text).append(close);
    }
    return text;
}

TEST_F(LimitsTest, FormsAndParenthesesNestUpToTheLimit) {
    const SmallStacks smallStacks;
    resolver.values.emplace(u"n", u"1");
    for (const auto& [forms, parentheses] : {std::pair(64, 64), {65, 64}, {64, 65}}) {
        tree.Write("en/Plural.rule", Nested(parentheses, "(", "n==1", ")") + ";");
        tree.Write("neutral/Locs/app.lt", "A = " + Nested(forms, "{$n: ", "'x'", "}"));
        const bool isAllowed = forms + parentheses == 128;
        std::thread([&, this] {
            String16 text;
            EXPECT_EQ(MakeLocalizer(u"app").Call(kGetString, String16(u"a"), &text),
                      isAllowed ? kOk : kUnspecifiedError);
            EXPECT_EQ(text.Text(), isAllowed ? u"x" : u"");
        }).join();
    }
}

TEST_F(LimitsTest, ReferencesExpandUpToTheLimits) {
    constexpr std::size_t kValue = std::size_t{1} << 20U;
    constexpr std::size_t kValues = 64;
    std::uint32_t language = 0;
    for (const auto& [length, values] :
         {std::pair(kValue, kValues), {kValue + 1, 1}, {kValue, kValues + 1}}) {
        std::string source = "Text = '" + std::string(length - 1, 'x') + "'";
        for (std::size_t i = 0; i < values; ++i) {
            source.append(" v").append(std::to_string(i)).append(" = text");
        }
        tree.Write("neutral/Locs/common.lt", source);
        const bool isAllowed = length + values == kValue + kValues;
        const Localizer localizer = MakeLocalizer(u"app", Culture(++language));
        for (int attempt = 0; attempt < 2; ++attempt) {  // what is done already counts
            EXPECT_EQ(localizer.Call(kHasString, String16(u"v0")),
                      isAllowed ? kOk : kUnspecifiedError);
        }
    }
}

}  // namespace
