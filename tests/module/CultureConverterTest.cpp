// Names of cultures and languages.
#include <fstream>
#include <new>

#include "ModuleHost.h"

namespace {

using namespace lm_test;

class CultureConverterTest : public ModuleHost {
protected:
    /// A culture whose strings have an allocator.
    Culture Before(const char* region, const char* variant) const {
        const qor::Allocator<char> source(&allocator);
        return {static_cast<Language>(77), {region, source}, {variant, source}};
    }

    /// What a culture holds once a name was converted into it.
    std::string Converted(const std::string& name) const {
        Culture culture = Before("left over from before", "left");
        const qor::result_t code = converter->GetCultureByIsoName(name.c_str(), culture);
        const auto language = static_cast<std::uint32_t>(culture.language);
        EXPECT_EQ(code, language == 77 ? qor::rcUnspecifiedError : qor::rcOk) << name;
        EXPECT_EQ(culture.region.get_allocator().source(), &allocator);
        return std::to_string(language) + ' ' + culture.region.c_str() + '|' +
               culture.variant.c_str();
    }

    const qor::objptr_t<ICultureConverter> converter = module.CreateCultureConverter(*services);
};

TEST_F(CultureConverterTest, NamesBecomeCulturesOrLeaveThemAlone) {
    std::ifstream file(CULTURES);
    std::uint32_t languages = 0;
    for (std::string line; std::getline(file, line);) {
        const std::string arrow = " -> ";
        const std::size_t at = line.find(arrow);
        ASSERT_NE(at, std::string::npos);
        const std::string name = line.substr(0, at);
        EXPECT_EQ(Converted(name), line.substr(at + arrow.size())) << name;
        if (languages < 38) {  // listed first, in the order of their values
            qor::string8_t isoName("", qor::Allocator<char>(&allocator));
            EXPECT_EQ(converter->GetLanguageIsoName(static_cast<Language>(languages), isoName),
                      qor::rcOk);
            EXPECT_EQ(isoName.view(), name);
            EXPECT_EQ(Converted(name + "-Rr-vv-w"), std::to_string(languages++) + " Rr|vv-w");
        }
    }
    EXPECT_EQ(languages, 38U);
}

TEST_F(CultureConverterTest, WithoutMemoryACultureIsLeftAlone) {
    Culture culture = Before("r", "v");
    const qor::string8_t name("de-a region of some length-and such a variant");
    for (const int call : {1, 2}) {
        allocator.failAt = call;
        ExpectLeavesOr<std::bad_alloc>(
            qor::rcOutOfMemory, [&] { return converter->GetCultureByIsoName(name, culture); });
    }
    EXPECT_EQ(culture.language, static_cast<Language>(77));
    EXPECT_EQ(std::string(culture.region.c_str()) + culture.variant.c_str(), "rv");
}

TEST_F(CultureConverterTest, UnsupportedLanguagesAreTraced) {
    qor::string8_t name("before");
    for (const std::uint32_t language : {0xFFFFFFFFU, 38U}) {
        EXPECT_EQ(converter->GetLanguageIsoName(static_cast<Language>(language), name),
                  qor::rcUnspecifiedError);
        services->tracer->throws = true;
    }
    EXPECT_EQ(name.view(), "before");
}

}  // namespace
