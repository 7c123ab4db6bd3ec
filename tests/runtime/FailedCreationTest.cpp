// Objects that do not come about.
#include <gtest/gtest.h>

#include "FakeServiceLocator.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/object_model/GenericObjectFactory.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"
#include "qor/rtl/object_model/ObjectRootEx.h"
#include "qor/rtl/object_model/SimpleObjectFactory.h"

namespace {

using namespace qor;

class Probe : public IObject, public ObjectRoot {
public:
    using Interfaces = InterfaceList<IObject>;
    using ObjectRoot::ObjectRoot;
};

using Factory = Object<GenericObjectFactory<Probe, ComponentObject<Probe>>, SimpleObjectFactory>;

TEST(FailedCreationTest, IsAFailureWhateverTheHostDoes) {
    const std::pair<std::function<result_t()>, result_t> cases[] = {
        {[] { return rcLocked; }, rcLocked},
        {[]() -> result_t { throw std::length_error("long"); }, rcOutOfMemory},
        {[]() -> result_t { throw ResultCodeException(rcFalse, "f", 7, u""); }, rcUnexpected}};
    const auto factory = objptr_t<Factory>::Adopt(new Factory());
    const auto locator = lm_test::Make<lm_test::FakeServiceLocator>();
    for (const auto& [fail, code] : cases) {
        locator->intercept = fail;
        void* out = nullptr;
        EXPECT_EQ(factory->CreateObject(locator.get(), 0, &out), code);
        EXPECT_EQ(out, nullptr);
        EXPECT_EQ(lm_test::References(*locator->allocator), 1U);
    }
}

}  // namespace
