// The exports, the factories, and the interfaces of what they make.
#include <algorithm>
#include <initializer_list>
#include <stdexcept>

#include "AbiHost.h"

namespace {

using namespace abi_host;

class ModuleTest : public AbiTest {
protected:
    ModuleTest() { manager.Reset(); }
};

/// Expects that an object answers the given identifiers and no other.
void ExpectAnswers(const Object& object, std::initializer_list<std::uint32_t> answered) {
    for (const std::uint32_t id :
         {0U, kAllocatorId, kTracerId, kFactoryId, kManagerId, kConstructId, kLocalizerId,
          kConverterId, kErrorListenerId, kStreamId, 0x12345678U}) {
        const bool answers = std::count(answered.begin(), answered.end(), id) != 0;
        void* asked = &asked;
        EXPECT_EQ(object.Call(2, id, &asked), answers ? kOk : kInterfaceNotSupported) << id;
        ASSERT_EQ(asked != nullptr, answers) << id;
        if (answers) {
            Object out;
            *out.Out() = asked;
            EXPECT_EQ(out.get() == object.get(), id != kConstructId) << id;
            EXPECT_EQ(out.References(), 2U);
        }
    }
    EXPECT_EQ(object.References(), 1U);
}

TEST_F(ModuleTest, EveryClassAnswersItsInterfacesOnly) {
    for (const std::uint32_t classId : {kManagerClass, kConverterClass}) {
        Object factory;
        ASSERT_EQ(GetObjectFactory(nullptr, classId, factory.Out()), kOk);
        ExpectAnswers(factory, {0, kFactoryId});
    }
    Object converter;
    ASSERT_EQ(Create(kConverterClass, 0, converter), kOk);
    ExpectAnswers(converter, {0, kConverterId});
    ASSERT_EQ(Create(kManagerClass, 0, manager), kOk);
    ExpectAnswers(manager, {0, kManagerId, kConstructId});
    tree.Write("neutral/app/a", "");
    ASSERT_EQ(manager.Init(tree.Path()), kOk);
    const Localizer localizer = MakeLocalizer(u"app");
    ExpectAnswers(localizer, {0, kLocalizerId});
    const String16 text;
    const Culture culture;
    Localizer overMemory;
    ASSERT_EQ(manager.Call(7, &text, &text, &text, &culture, nullptr, overMemory.Out()), kOk);
    ExpectAnswers(overMemory, {0, kLocalizerId});
    Stream stream;
    ASSERT_EQ(localizer.GetStream(u"a", stream.Out()), kOk);
    ExpectAnswers(stream, {0, kStreamId});
    services.ExpectHeldBy(6);  // the manager's own error listener is the sixth
}

TEST_F(ModuleTest, UnknownClassesAndInterfacesGiveNull) {
    void* out = this;
    EXPECT_EQ(GetObjectFactory(nullptr, 0x12345678, &out), kNotImplemented);
    EXPECT_EQ(out, nullptr);
    for (const std::uint32_t classId : {kManagerClass, kConverterClass}) {
        Object none;
        EXPECT_EQ(Create(classId, kLocalizerId, none), kInterfaceNotSupported);
        EXPECT_EQ(none.get(), nullptr);
        EXPECT_EQ(CanUnload(), kOk);
    }
}

TEST_F(ModuleTest, CannotUnloadWhileAFactoryOrAnObjectLives) {
    Object factory;
    ASSERT_EQ(GetObjectFactory(&services, kConverterClass, factory.Out()), kOk);
    EXPECT_EQ(CanUnload(), kFalse);
    Object object;
    ASSERT_EQ(factory.Call(3, static_cast<void*>(&services), 0U, object.Out()), kOk);
    factory.Reset();
    EXPECT_EQ(CanUnload(), kFalse);
    object.Reset();
    EXPECT_EQ(CanUnload(), kOk);
    ASSERT_EQ(GetObjectFactory(&services, kConverterClass, factory.Out()), kOk);
    EXPECT_LT(factory.Call(3, nullptr, 0U, object.Out()), 0);
}

TEST_F(ModuleTest, FailingServicesEndCreationWithTheirCode) {
    const auto lacks = [](std::uint32_t service) {
        return [service](std::uint32_t id) { return id == service ? kNotFound : kOk; };
    };
    const auto throws = [](std::uint32_t id) -> Result {
        return id == kTracerId ? kOk : throw std::runtime_error("closed");
    };
    const struct {
        std::function<Result(std::uint32_t)> answer;
        int failAt;
        Result result;
        const char* traced;  // null for nothing
    } cases[] = {{lacks(kAllocatorId), 0, kNotFound, nullptr},
                 {lacks(kTracerId), 0, kNotFound, nullptr},
                 {throws, 0, kUnknownException, "closed"},
                 {nullptr, 1, kOutOfMemory, "std::bad_alloc"},
                 {[](std::uint32_t) { return kFalse; }, 0, kOk, nullptr}};
    for (const auto& c : cases) {
        services.answer = c.answer;
        services.allocator.failAt = c.failAt;
        EXPECT_EQ(Create(kManagerClass, kManagerId, manager), c.result);
        EXPECT_EQ(manager.get() != nullptr, c.result == kOk);
        Records traced;
        if (c.traced != nullptr) {
            traced = {{300, std::string("Exception during object construction: ") + c.traced}};
        }
        EXPECT_EQ(services.tracer.Take(), traced);
        services.ExpectHeldBy(c.result == kOk ? 1 : 0);
    }
}

}  // namespace
