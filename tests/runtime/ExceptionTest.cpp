// Framework exceptions, contract exceptions and the texts they show.
#include <gtest/gtest.h>

#include "qor/rtl/contracts/QorCallFailedException.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/error_handling/GetInterfaceException.h"
#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/error_handling/display_text.h"
#include "qor/rtl/error_handling/number_text.h"

namespace {

using namespace qor;

ResultCodeException Chain() {
    auto innermost = std::make_unique<GetInterfaceException>(0x0000000A, rcInterfaceNotSupported,
                                                             "qor/c.h", 113);
    auto middle = std::make_unique<ResultCodeException>(rcNotFound, "b.cpp", 20, u"\u0416",
                                                        std::move(innermost));
    return ResultCodeException(rcInvalidArgument, "a.cpp", 1, u"x", std::move(middle));
}

constexpr const char* kChainText =
    "ResultCodeException - x: 0x80000046 (Invalid argument). At a.cpp(1) "
    ";<Exception display text conversion error>"
    ";GetInterfaceException - 0x80000001 (Interface not supported): iid:0000000a. At qor/c.h(113) ";

TEST(ExceptionTest, MessagesCarryTheCodeInHexadecimalAndWords) {
    EXPECT_EQ(ResultCodeException(rcNotFound, "", 0, u"").GetMessage(),
              string16_t(u"0x8000004c (Not found)"));
    EXPECT_EQ(GetInterfaceException(0x9CCA5603, rcOk, "", 0).GetMessage(),
              string16_t(u"0x00000000 (No error): iid:9cca5603"));
    EXPECT_EQ(DisplayText(ResultCodeException(rcNotFound, "b.cpp", 20, u"\u0416")),
              string16_t(u"ResultCodeException - \u0416: 0x8000004c (Not found). At b.cpp(20) "));
}

TEST(ExceptionTest, AChainIsToldLinkByLinkAndSurvivesCopying) {
    const auto copy = [] { return Chain().Clone(); }();
    EXPECT_EQ(NarrowDisplayText(*copy), kChainText);
    try {
        static_cast<const Exception&>(*copy).Rethrow();
    } catch (const ResultCodeException& caught) {
        EXPECT_NE(static_cast<const Exception*>(&caught), copy.get());
        EXPECT_NE(caught.GetInner(), copy->GetInner());
        EXPECT_EQ(NarrowDisplayText(caught), kChainText);
    }
    EXPECT_THROW(copy->GetInner()->GetInner()->Rethrow(), GetInterfaceException);
}

const code_contracts::ContractLocation kLocation = {"argument_", "void f(int)", "src/f.cpp", 42};

constexpr const char* kViolation =
    "Contract Violation! Violated argument 'argument_' at void f(int) at src/f.cpp:42Description: ";

template <class Expected, class Call>
void ExpectViolation(Call call, const std::string& description) {
    try {
        call();
        FAIL() << description;
    } catch (const Expected& caught) {
        EXPECT_EQ(caught.what(), kViolation + description);
        EXPECT_EQ(caught.GetDescription(), description);
    }
}

TEST(ContractTest, ChecksThrowTheirOwnClassWithTheWholeText) {
    using namespace code_contracts;
    const std::unique_ptr<int> null;
    ExpectViolation<NullPointerException<RequireViolationException>>(
        [&] { RequireNotNull(null, kLocation); }, "unexpected null pointer");
    ExpectViolation<NullPointerException<InvariantViolationException>>(
        [&] { CheckNotNull(null, kLocation); }, "unexpected null pointer");
    ExpectViolation<LocalizationManager::QorCallFailedException>(
        [] { LocalizationManager::CheckCall(rcFileNotFound, "Cannot open file", kLocation); },
        "Cannot open file, error: File not found");
    EXPECT_NO_THROW(CheckNotNull(std::make_unique<int>(), kLocation));
    EXPECT_NO_THROW(LocalizationManager::CheckCall(rcFalse, "", kLocation));
}

TEST(NumberTextTest, PrefixAndPaddingStandWhereTheFormatPutsThem) {
    const struct {
        std::uint32_t value;
        std::u16string_view prefix;
        NumberFormat format;  // width, base, precision, alignment, fill, alternate form
        std::u16string_view text;
    } cases[] = {{0, u"", {8, 16, -1, 1, U'0', false}, u"00000000"},
                 {0x8000004C, u"", {8, 16, -1, 1, U'0', false}, u"8000004c"},
                 {35, u"", {0, 36, -1, 1, U' ', true}, u"z"},
                 {255, u"", {6, 16, -1, 1, U'.', true}, u"..0xff"},
                 {255, u"", {6, 16, -1, 0, U'.', true}, u"0x..ff"},
                 {255, u"", {6, 16, -1, -1, U'.', true}, u"0xff.."},
                 {8, u"", {5, 8, -1, 0, U'\U0001F511', true}, u"0\U0001F511\U0001F51110"},
                 {255, u"#", {4, 16, -1, 1, U' ', true}, u" #ff"}};
    for (const auto& expected : cases) {
        string16_t text(u"-");
        AppendNumber(text, expected.value, expected.prefix, expected.format);
        EXPECT_EQ(text.view().substr(1), expected.text);
    }
}

}  // namespace
