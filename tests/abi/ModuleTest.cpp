// The exports, the factories, and the interfaces of what they make.
#include <algorithm>
#include <initializer_list>

#include "AbiHost.h"

namespace {

using namespace abi_host;

struct ModuleTest : AbiTest {
    ModuleTest() { manager.Reset(); }
};

/// Expects that an object answers the given identifiers and no other.
void ExpectAnswers(const Object& object, std::initializer_list<std::uint32_t> answered) {
    for (const std::uint32_t id :
         {0U, kAllocatorId, kTracerId, kFactoryId, kManagerId, kConstructId, kLocalizerId,
          kConverterId, kErrorListenerId, kStreamId}) {
        const bool answers = std::count(answered.begin(), answered.end(), id) != 0;
        void* asked = &asked;
        EXPECT_EQ(object.Call(2, id, &asked), answers ? kOk : kInterfaceNotSupported) << id;
        ASSERT_EQ(asked != nullptr, answers) << id;
        EXPECT_EQ(asked == object.get(), answers && id != kConstructId) << id;
        if (answers) {
            EXPECT_EQ(object.Call(1), 1);
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
    ASSERT_EQ(Init(tree.Path()), kOk);
    const Localizer localizer = MakeLocalizer(u"app");
    ExpectAnswers(localizer, {0, kLocalizerId});
    Localizer overMemory;
    ASSERT_EQ(CreateLocalizer(kFromBuffers, u"", Culture(), nullptr, overMemory.Out()), kOk);
    ExpectAnswers(overMemory, {0, kLocalizerId});
    Object stream;
    ASSERT_EQ(localizer.Call(kGetStream, String16(u"a"), stream.Out()), kOk);
    ExpectAnswers(stream, {0, kStreamId});
    services.ExpectHeldBy(6);  // the manager's own error listener is the sixth
}

TEST_F(ModuleTest, UnknownClassesAndInterfacesGiveNull) {
    void* out = this;
    EXPECT_EQ(GetObjectFactory(nullptr, 0x12345678, &out), kNotImplemented);
    EXPECT_EQ(out, nullptr);
    Object none;
    EXPECT_EQ(Create(kManagerClass, kLocalizerId, none), kInterfaceNotSupported);
    EXPECT_EQ(none.get(), nullptr);
}

TEST_F(ModuleTest, CannotUnloadWhileAFactoryOrAnObjectLives) {
    Object factory;
    Object object;
    ASSERT_EQ(GetObjectFactory(&services, kConverterClass, factory.Out()), kOk);
    EXPECT_EQ(CanUnload(), kFalse);
    EXPECT_LT(factory.Call(3, nullptr, 0U, object.Out()), 0);
    ASSERT_EQ(factory.Call(3, static_cast<void*>(&services), 0U, object.Out()), kOk);
    factory.Reset();
    EXPECT_EQ(CanUnload(), kFalse);
}

}  // namespace
