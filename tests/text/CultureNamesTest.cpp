// Names of languages and cultures.
#include "CultureNames.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "GlobalLocale.h"

namespace {

using namespace localization_manager;

Culture Make(Language language, const char* region, const char* variant) {
    return Culture{language, region, variant};
}

TEST(CultureNamesTest, EveryLanguageHasItsIsoName) {
    std::string names;
    for (std::uint32_t value = 0; value < 38; ++value) {
        names += LanguageToIsoName(static_cast<Language>(value)) + ' ';
    }
    EXPECT_EQ(names,
              "ar sq bg zh-Hant zh-Hans cs da nl en et fa fi fr de el hu id ga it ja kk ko lt lv "
              "mk nb pt pl ru ro es sr-Cyrl sr-Latn sl sv tr uk vi ");
}

TEST(CultureNamesTest, AnUnsupportedLanguageIsNamedWithoutDigitGrouping) {
    const lm_test::GlobalLocale english("en_US.UTF-8");
    for (const std::uint32_t value : {38U, 1234567U, std::numeric_limits<std::uint32_t>::max()}) {
        const auto language = static_cast<Language>(value);
        const std::string text = "Unsupported language " + std::to_string(value);
        try {
            CultureToName(language, "br");
            FAIL() << text;
        } catch (const std::range_error& caught) {
            EXPECT_EQ(caught.what(), text);
        }
        EXPECT_EQ(CultureText(Make(language, "br", "")), text + "-br");
    }
}

TEST(CultureNamesTest, RegionAndVariantFollowTheLanguage) {
    EXPECT_EQ(CultureToName(Language::Spanish, "mx"), "es-mx");
    EXPECT_EQ(CultureToName(Language::Spanish, ""), "es");
    EXPECT_EQ(CultureText(Make(Language::Portuguese, "BR", "x")), "pt-BR-x");
    EXPECT_TRUE(SameCulture(Make(Language::German, "at", "x"), Make(Language::German, "at", "x")));
    for (const Culture& other :
         {Make(Language::Danish, "at", "x"), Make(Language::German, "AT", "x"),
          Make(Language::German, "at", "")}) {
        EXPECT_FALSE(SameCulture(Make(Language::German, "at", "x"), other)) << CultureText(other);
    }
}

}  // namespace
