// Names of cultures and languages.
#include <fstream>
#include <new>

#include "AbiHost.h"

namespace {

using namespace abi_host;

class CultureConverterTest : public AbiTest {
protected:
    CultureConverterTest() { EXPECT_EQ(Create(kConverterClass, kConverterId, converter), kOk); }

    /// What a culture holds once a name was converted into it.
    std::string Converted(const std::string& name) {
        Culture culture(77, "left over from before", "left", &services.allocator);
        const Result code = converter.Call(3, String8(name), &culture);
        EXPECT_EQ(code, culture.language == 77 ? kUnspecifiedError : kOk) << name;
        EXPECT_EQ(culture.region.allocator, &services.allocator);
        return std::to_string(culture.language) + ' ' + culture.region.Narrow() + '|' +
               culture.variant.Narrow();
    }

    Object converter;
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
            String8 isoName("", &services.allocator);
            EXPECT_EQ(converter.Call(4, languages, &isoName), kOk);
            EXPECT_EQ(isoName.Text(), name);
            EXPECT_EQ(Converted(name + "-Rr-vv-w"), std::to_string(languages++) + " Rr|vv-w");
        }
    }
    EXPECT_EQ(languages, 38U);
}

TEST_F(CultureConverterTest, WithoutMemoryACultureIsLeftAlone) {
    Culture culture(7, "r", "v", &services.allocator);
    const String8 name("de-a region of some length-and such a variant");
    for (const int call : {1, 2}) {
        services.allocator.failAt = call;
        EXPECT_THROW(converter.Call(3, name, &culture), std::bad_alloc);
    }
    EXPECT_EQ(culture.language, 7U);
    EXPECT_EQ(culture.region.Narrow() + culture.variant.Narrow(), "rv");
}

TEST_F(CultureConverterTest, UnsupportedLanguagesAreTraced) {
    String8 name("before");
    EXPECT_EQ(converter.Call(4, 0xFFFFFFFF, &name), kUnspecifiedError);
    services.tracer.throws = true;
    EXPECT_EQ(converter.Call(4, 38U, &name), kUnspecifiedError);
    EXPECT_EQ(name.Text(), "before");
}

}  // namespace
