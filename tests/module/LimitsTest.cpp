// What a text may ask for at most: at and above each limit, on a stack as small as a host's may be.
#include "ModuleHost.h"
#include "SmallStack.h"

namespace {

using namespace lm_test;

#ifdef NDEBUG  // what the guide for hosts asks for
constexpr std::size_t kStackSize = std::size_t{160} * 1024;
#else  // frames of sanitized builds are several times as large
constexpr std::size_t kStackSize = std::size_t{8} * 1024 * 1024;
#endif

struct LimitsTest : ModuleHost {
    LimitsTest() {
        tree.Write("neutral/Locs/common.lt", "");
        tree.Write("neutral/Locs/app.lt", "");
        EXPECT_EQ(Init(tree.Path(), u"", listener), qor::rcOk);
    }
};

std::string Nested(int depth, const std::string& open, std::string text, const std::string& close) {
    for (int i = 0; i < depth; ++i) {
        text = std::string(open).append(text).append(close);
    }
    return text;
}

TEST_F(LimitsTest, FormsAndParenthesesNestUpToTheLimit) {
    params->Set("n", 1);
    for (const auto& [forms, parentheses] : {std::pair(64, 64), {65, 64}, {64, 65}}) {
        tree.Write("en/Plural.rule", Nested(parentheses, "(", "n==1", ")") + ";");
        tree.Write("neutral/Locs/app.lt", "A = " + Nested(forms, "{$n: ", "'x'", "}"));
        const bool isAllowed = forms + parentheses == 128;
        RunOnSmallStack(kStackSize, [&, this] {
            qor::string16_t text;
            EXPECT_EQ(MakeLocalizer(u"app")->GetString(u"a", text),
                      isAllowed ? qor::rcOk : qor::rcUnspecifiedError);
            EXPECT_EQ(text.view(), isAllowed ? u"x" : u"");
        });
    }
}

TEST_F(LimitsTest, ReferencesExpandUpToTheLimits) {
    constexpr std::size_t kValue = (std::size_t{1} << 20U) - 3;  // what else a value takes
    constexpr std::size_t kValues = 4;
    int language = 0;
    for (const auto& [length, values] :
         {std::pair(kValue, kValues), {kValue + 1, 1}, {kValue, kValues + 1}}) {
        std::string source = "Text = '" + std::string(length, 'x') + "'";
        for (std::size_t i = 0; i < values; ++i) {
            source.append(" v").append(std::to_string(i)).append(" = text");
        }
        tree.Write("neutral/Locs/common.lt", source);
        const bool isAllowed = length + values == kValue + kValues;
        const auto localizer = MakeLocalizer(u"app", MakeCulture(++language));
        for (int attempt = 0; attempt < 2; ++attempt) {  // what is done already counts
            EXPECT_EQ(localizer->HasString(u"v0"), isAllowed ? qor::rcOk : qor::rcUnspecifiedError);
        }
    }
}

}  // namespace
