// Creation, reference counting, interface queries and destruction of component objects.
#include <gtest/gtest.h>

#include "FakeServiceLocator.h"
#include "qor/rtl/object_model/GenericObjectFactory.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"
#include "qor/rtl/object_model/ObjectRootEx.h"
#include "qor/rtl/object_model/SimpleObjectFactory.h"

namespace {

using namespace qor;
using namespace std::literals;
using lm_test::FakeAllocator;
using lm_test::FakeServiceLocator;
using lm_test::FakeTracer;
using lm_test::Make;
using lm_test::References;

class IFirst : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x11;
};

class ISecond : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x22;
};

class Probe : public IFirst, public ISecond, public ObjectRoot {
public:
    using Interfaces = InterfaceList<IFirst, ISecond>;
    static inline std::function<void()> duringConstruction;

    explicit Probe(IServiceLocator& locator) : ObjectRoot(locator) { duringConstruction(); }
};

using ProbeFactory =
    Object<GenericObjectFactory<Probe, ComponentObject<Probe>>, SimpleObjectFactory>;

/// Calls an operation as a host does that knows nothing but the interface tables.
template <class Result, class... Arguments>
Result CallSlot(void* object, std::size_t slot, Arguments... arguments) {
    using Operation = Result (*)(void*, Arguments...);
    return (*static_cast<Operation**>(object))[slot](object, arguments...);
}

class ObjectModelTest : public testing::Test {
protected:
    ObjectModelTest() {
        Probe::duringConstruction = [] {};
        ProbeFactory* factory = nullptr;
        EXPECT_EQ(ProbeFactory::CreateInstance(&factory), rcOk);
        factory_ = objptr_t<ProbeFactory>::Adopt(factory);
        EXPECT_EQ(ModuleLockCount::Get(), 1U);
    }

    ~ObjectModelTest() override {
        ExpectNothingLeft();
        factory_ = nullptr;
        EXPECT_EQ(ModuleLockCount::Get(), 0U);
    }

    /// Everything is as it was before the first object, apart from the factory.
    void ExpectNothingLeft() const {
        EXPECT_EQ(ModuleLockCount::Get(), 1U);
        EXPECT_EQ(locator_->allocator->LiveBlocks(), 0U);
        EXPECT_EQ(References(*locator_->allocator), 1U);
        EXPECT_EQ(References(*locator_->tracer), 1U);
        EXPECT_EQ(References(*locator_), 1U);
        EXPECT_EQ(References(*factory_), 1U);
    }

    const objptr_t<FakeServiceLocator> locator_ = Make<FakeServiceLocator>();
    objptr_t<ProbeFactory> factory_;
};

TEST_F(ObjectModelTest, AllInterfacesShareOneReferenceCount) {
    void* first = nullptr;
    ASSERT_EQ(factory_->CreateObject(locator_.get(), IFirst::InterfaceId, &first), rcOk);
    EXPECT_EQ(ModuleLockCount::Get(), 2U);
    auto* const object = static_cast<ComponentObject<Probe>*>(static_cast<IFirst*>(first));
    EXPECT_EQ(object->GetServiceLocator(), locator_.get());
    const std::pair<std::uint32_t, void*> answers[] = {
        {0, first}, {0x11, first}, {0x22, static_cast<ISecond*>(object)}, {0x33, nullptr}};
    for (const auto& [interfaceId, expected] : answers) {
        void* found = &found;
        const result_t code = expected != nullptr ? rcOk : rcInterfaceNotSupported;
        EXPECT_EQ(CallSlot<result_t>(first, 2, interfaceId, &found), code);
        EXPECT_EQ(found, expected);
        if (found != nullptr) {
            EXPECT_EQ(CallSlot<std::uint32_t>(found, 0), 3U);
            EXPECT_EQ(CallSlot<std::uint32_t>(found, 1), 2U);
            EXPECT_EQ(CallSlot<std::uint32_t>(first, 1), 1U);
        }
    }
    EXPECT_EQ(CallSlot<std::uint32_t>(first, 1), 0U);
}

TEST_F(ObjectModelTest, AnUnknownInterfaceDestroysTheNewObject) {
    void* out = &out;
    IServiceLocator* const locator = locator_.get();
    EXPECT_EQ(CallSlot<result_t>(factory_.get(), 3, locator, 0x33U, &out), rcInterfaceNotSupported);
    EXPECT_EQ(out, nullptr);
}

TEST_F(ObjectModelTest, HostInterfacesHaveTheirOperationsInTheirSlots) {
    void* allocator = nullptr;
    CallSlot<result_t>(locator_.get(), 3, 0x9CCA5603U, std::uintptr_t{0}, &allocator);
    CallSlot<void>(allocator, 5, CallSlot<void*>(allocator, 3, std::size_t{10}));
    EXPECT_EQ(locator_->allocator->LastSize(), 10U);
    CallSlot<std::uint32_t>(allocator, 1);
    char* record = nullptr;
    EXPECT_EQ(CallSlot<result_t>(locator_->tracer.get(), 3, 300U, &record, 512U), rcOk);
    EXPECT_EQ(CallSlot<result_t>(locator_->tracer.get(), 4, record, 0U), rcOk);
    EXPECT_EQ(locator_->tracer->TakeRecords().size(), 1U);
}

TEST_F(ObjectModelTest, AFailedCreationLeavesNothingBehind) {
    const auto notFound = [] { return rcNotFound; };
    const auto givesNull = [] { return rcFalse; };
    const auto exhausts = [this] { return locator_->allocator->FailAt(1), rcOk; };
    const auto throws = []() -> result_t { throw std::length_error("long"); };
    const auto throwsCode = []() -> result_t { throw ResultCodeException(rcLocked, "f", 7, u""); };
    const auto throwsSuccess = []() -> result_t {
        throw ResultCodeException(rcFalse, "f", 7, u"");
    };
    const auto throwsAnything = []() -> result_t { throw 42; };
    const struct {
        int from, to;  // at these lookups (allocator, allocator, tracer, and the tracer to report
                       // to), or in the constructor (0), this happens:
        std::function<result_t()> happens;
        result_t code;
        std::string traced;  // empty for no record
    } cases[] = {
        {1, 1, notFound, rcNotFound, ""},
        {1, 1, givesNull, rcUnexpected, ""},
        {1, 1, exhausts, rcOutOfMemory, "std::bad_alloc"},
        {1, 1, throws, rcOutOfMemory, "long"},
        {1, 2, throwsAnything, rcUnknownException, ""},
        {2, 2, notFound, rcNotFound,
         "GetInterfaceException - 0x8000004c (Not found): iid:9cca5603. At "
         "qor/rtl/objclient(113) "},
        {3, 3, notFound, rcNotFound,
         "GetInterfaceException - 0x8000004c (Not found): iid:6ef3329b. At "
         "qor/rtl/objclient(113) "},
        {3, 4, notFound, rcNotFound, ""},
        {0, 0, throws, rcOutOfMemory, "long"},
        {0, 0, throwsCode, rcLocked, "ResultCodeException - 0x8000004f (Locked). At f(7) "},
        {0, 0, throwsSuccess, rcFalse, "ResultCodeException - 0x00000001 (False). At f(7) "},
        {0, 0, throwsAnything, rcUnknownException, ""}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::Message() << expected.from << ' ' << expected.traced);
        int lookups = 0;
        locator_->intercept = [&](std::uint32_t) {
            ++lookups;
            return lookups >= expected.from && lookups <= expected.to ? expected.happens() : rcOk;
        };
        Probe::duringConstruction = [&] { expected.from == 0 ? expected.happens() : rcOk; };
        void* out = &out;
        EXPECT_EQ(factory_->CreateObject(locator_.get(), 0, &out), expected.code);
        EXPECT_EQ(out, &out);
        locator_->allocator->Recover();
        FakeTracer::Records records;
        if (!expected.traced.empty()) {
            records = {{300, "Exception during object construction: " + expected.traced}};
        }
        EXPECT_EQ(locator_->tracer->TakeRecords(), records);
        ExpectNothingLeft();
    }
    EXPECT_EQ(factory_->CreateObject(nullptr, 0, nullptr), rcInvalidArgument);
}

std::string events;  // each with the module's count at its time

template <class Base, char Name>
class Logged : public Base {
public:
    using Base::Base;
    std::uint32_t Release() override {
        events += Name + std::to_string(ModuleLockCount::Get());
        return Base::Release();
    }
};

class LoggedAllocator : public Logged<FakeAllocator, 'a'> {
public:
    void Free(void* pointer) override {
        events += "free";
        Logged::Free(pointer);
    }
};

TEST_F(ObjectModelTest, TheLastReleaseGivesTheServicesBackInOrder) {
    const auto locator = Make<Logged<FakeServiceLocator, 'l'>>(Make<LoggedAllocator>(),
                                                               Make<Logged<FakeTracer, 't'>>());
    void* out = nullptr;
    ASSERT_EQ(factory_->CreateObject(locator.get(), 0, &out), rcOk);
    events.clear();
    static_cast<IFirst*>(out)->Release();
    EXPECT_EQ(events, "l2t2a2freea1");
}

}  // namespace
