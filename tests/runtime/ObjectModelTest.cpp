// Construction and destruction of component objects.
#include <gtest/gtest.h>

#include "FakeServiceLocator.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace {

using namespace qor;
using lm_test::References;
using ProbeObject = ComponentObject<class Probe>;

class Probe : public IObject, public ObjectRoot {
public:
    static constexpr std::uint32_t InterfaceId = 0x11;
    using Interfaces = InterfaceList<Probe>;
    static inline std::function<result_t()> duringConstruction;

    explicit Probe(IServiceLocator& locator) : ObjectRoot(locator) { duringConstruction(); }
};

TEST(ObjectModelTest, AFailedConstructionIsTracedAndLeavesNothingBehind) {
    const std::string prefix = "300 Exception during object construction: ";
    using Event = std::function<result_t()>;
    const Event notFound = [] { return rcNotFound; };
    const Event givesNull = [] { return rcFalse; };
    const Event throws = []() -> result_t { throw std::length_error("long"); };
    const Event throwsAnything = []() -> result_t { throw 42; };
    const Event throwsCode = []() -> result_t { throw ResultCodeException(rcFalse, "f", 7, u""); };
    const struct {
        int lookup;     // of the allocator, the allocator again or the tracer; 0 for none
        Event happens;  // there, or in the constructor
        result_t code;
        std::string traced;
    } cases[] = {
        {1, givesNull, rcUnexpected, ""},
        {1, throwsAnything, rcUnknownException, ""},
        {2, notFound, rcNotFound,
         prefix + "GetInterfaceException - 0x8000004c (Not found): iid:9cca5603. At "
                  "qor/rtl/objclient(113) \n"},
        {2, givesNull, rcUnexpected,
         prefix + "GetInterfaceException - 0x80000040 (Unexpected): iid:9cca5603. At "
                  "qor/rtl/objclient(113) \n"},
        {0, throws, rcOutOfMemory, prefix + "long\n"},
        {0, throwsCode, rcFalse, prefix + "ResultCodeException - 0x00000001 (False). At f(7) \n"},
        {0, throwsAnything, rcUnknownException, ""}};
    const auto locator = lm_test::Make<lm_test::FakeServiceLocator>();
    for (const auto& expected : cases) {
        int lookups = 0;
        locator->intercept = [&] {
            return ++lookups == expected.lookup ? expected.happens() : rcOk;
        };
        Probe::duringConstruction = expected.lookup == 0 ? expected.happens : [] { return rcOk; };
        ProbeObject* out = nullptr;
        EXPECT_EQ(ProbeObject::CreateInstance(locator.get(), &out), expected.code);
        EXPECT_EQ(out, nullptr);
        EXPECT_EQ(locator->tracer->TakeRecords(), expected.traced);
        EXPECT_EQ(ModuleLockCount::Get(), 0U);
        EXPECT_TRUE(locator->allocator->live.empty());
        EXPECT_EQ(
            References(*locator) + References(*locator->allocator) + References(*locator->tracer),
            3U);
    }
}

}  // namespace
