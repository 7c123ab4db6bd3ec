// Names of cultures and languages.
#include <iterator>
#include <new>

#include "AbiHost.h"

namespace {

using namespace abi_host;

class CultureConverterTest : public AbiTest {
protected:
    CultureConverterTest() { EXPECT_EQ(Create(kConverterClass, kConverterId, converter), kOk); }

    Result GetCulture(const String8& name, Culture& culture) {
        return converter.Call(3, &name, &culture);
    }

    void ExpectCulture(const std::string& name, std::uint32_t language, std::string_view region,
                       std::string_view variant) {
        Culture culture(7, "left over from before", "left", &services.allocator);
        ASSERT_EQ(GetCulture(name, culture), kOk) << name;
        EXPECT_EQ(culture.language, language) << name;
        EXPECT_EQ(culture.region.Text(), region) << name;
        EXPECT_EQ(culture.variant.Text(), variant) << name;
        EXPECT_EQ(culture.region.allocator, &services.allocator);
    }

    Object converter;
};

TEST_F(CultureConverterTest, EveryLanguageIsFoundByItsNameAndNamedByItsValue) {
    const char* const names[] = {"ar",      "sq", "bg", "zh-Hant", "zh-Hans", "cs", "da", "nl",
                                 "en",      "et", "fa", "fi",      "fr",      "de", "el", "hu",
                                 "id",      "ga", "it", "ja",      "kk",      "ko", "lt", "lv",
                                 "mk",      "nb", "pt", "pl",      "ru",      "ro", "es", "sr-Cyrl",
                                 "sr-Latn", "sl", "sv", "tr",      "uk",      "vi"};
    for (std::uint32_t value = 0; value < std::size(names); ++value) {
        const std::string name = names[value];
        String8 isoName("", &services.allocator);
        EXPECT_EQ(converter.Call(4, value, &isoName), kOk);
        EXPECT_EQ(isoName.Text(), name);
        ExpectCulture(name, value, "", "");
        ExpectCulture(name + "-Rr-vv-w", value, "Rr", "vv-w");
    }
}

TEST_F(CultureConverterTest, ShorthandsRegionsAndVariantsAreTaken) {
    const struct {
        const char* name;
        std::uint32_t language;
        const char* region;
        const char* variant;
    } cases[] = {
        {"anz", 8, "au", ""},   {"br", 26, "br", ""},
        {"hch", 3, "hk", ""},   {"la", 30, "mx", ""},
        {"sch", 4, "", ""},     {"sea", 8, "my", ""},
        {"tch", 3, "", ""},     {"zh-HANT-hk", 3, "hk", ""},
        {"pt-", 26, "", ""},    {"br-x-y", 26, "x", "y"},
        {"de--v", 13, "", "v"}, {"TCH-A-sixteen-or-more-bytes", 3, "A", "sixteen-or-more-bytes"}};
    for (const auto& c : cases) {
        ExpectCulture(c.name, c.language, c.region, c.variant);
    }
}

TEST_F(CultureConverterTest, FailuresLeaveTheCultureAlone) {
    Culture culture(7, "r", "v", &services.allocator);
    for (const char* name : {"", "sr", "zh", "english", "xx", "d", "de_DE", "-de", "zh-han"}) {
        EXPECT_EQ(GetCulture(name, culture), kUnspecifiedError) << name;
    }
    for (const int call : {1, 2}) {
        services.allocator.failAt = call;
        EXPECT_THROW(GetCulture("de-a region of some length-and such a variant", culture),
                     std::bad_alloc);
    }
    EXPECT_EQ(culture.language, 7U);
    EXPECT_EQ(culture.region.Text(), "r");
    EXPECT_EQ(culture.variant.Text(), "v");
}

TEST_F(CultureConverterTest, UnsupportedLanguagesAreTraced) {
    const std::tuple<std::uint32_t, std::string, std::string> cases[] = {
        {38, "38", "38"}, {0xFFFFFFFF, "-1", "4294967295"}};
    String8 name("before");
    for (const auto& [language, asSigned, asUnsigned] : cases) {
        EXPECT_EQ(converter.Call(4, language, &name), kUnspecifiedError);
        std::string text =
            "localization manager error: GetLanguageIsoName cannot convert language value lang='";
        text.append(asSigned).append("', error: Unsupported language ").append(asUnsigned);
        EXPECT_EQ(services.tracer.Take(), Records({{300, text}}));
    }
    services.tracer.throws = true;
    EXPECT_EQ(converter.Call(4, 38U, &name), kUnspecifiedError);
    EXPECT_EQ(name.Text(), "before");
}

}  // namespace
