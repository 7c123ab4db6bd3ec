// Framework exceptions and the texts they show.
#include <gtest/gtest.h>

#include "qor/rtl/error_handling/GetInterfaceException.h"
#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/error_handling/display_text.h"
#include "qor/rtl/error_handling/number_text.h"

namespace {

using namespace qor;

ResultCodeException Chain() {
    auto innermost =
        std::make_unique<GetInterfaceException>(0xA, rcInterfaceNotSupported, "qor/c.h", 113);
    auto middle = std::make_unique<ResultCodeException>(rcNotFound, "b.cpp", 20, u"\u0416",
                                                        std::move(innermost));
    return ResultCodeException(rcInvalidArgument, "a.cpp", 1, u"x", std::move(middle));
}

TEST(ExceptionTest, AChainIsToldLinkByLinkAndSurvivesCopying) {
    const std::string text =
        "ResultCodeException - x: 0x80000046 (Invalid argument). At a.cpp(1) "
        ";<Exception display text conversion error>"
        ";GetInterfaceException - 0x80000001 (Interface not supported): iid:0000000a. At "
        "qor/c.h(113) ";
    const auto copy = [] { return Chain().Clone(); }();
    EXPECT_EQ(NarrowDisplayText(*copy), text);
    try {
        static_cast<const Exception&>(*copy).Rethrow();
    } catch (const ResultCodeException& caught) {
        EXPECT_NE(caught.GetInner(), copy->GetInner());
        EXPECT_EQ(NarrowDisplayText(caught), text);
    }
    EXPECT_THROW(copy->GetInner()->GetInner()->Rethrow(), GetInterfaceException);
}

TEST(ExceptionTest, PrefixAndPaddingStandWhereTheFormatPutsThem) {
    string16_t text;
    const auto append = [&text](std::u16string_view prefix, unsigned base, int alignment) {
        AppendNumber(text, 255, prefix, {6, base, -1, alignment, U'.', true});
    };
    append(u"", 16, 1);
    append(u"", 16, 0);
    append(u"", 8, -1);
    append(u"#", 36, 1);
    EXPECT_EQ(text.view(), u"..0xff0x..ff0377.....#73");
}

}  // namespace
