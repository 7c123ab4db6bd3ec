// The factories, the interfaces of what they make, and creations that fail.
#include <algorithm>
#include <functional>
#include <initializer_list>
#include <stdexcept>

#include "ModuleHost.h"
#include "localization_manager/IConstruct.h"

namespace {

using namespace lm_test;

class ModuleTest : public ModuleHost {
protected:
    ModuleTest() { manager = nullptr; }

    qor::objptr_t<qor::IObjectFactory> Factory(std::uint32_t classId) const {
        qor::objptr_t<qor::IObjectFactory> factory;
        EXPECT_EQ(getObjectFactory(nullptr, classId, Out(factory)), qor::rcOk);
        return factory;
    }

    template <class Interface>
    static void** Out(qor::objptr_t<Interface>& pointer) {
        return reinterpret_cast<void**>(pointer.Ref());
    }

    const GetObjectFactoryFunction getObjectFactory =
        Export<GetObjectFactoryFunction>(kGetObjectFactoryName);
};

/// Expects that an object answers the given identifiers and no other.
void ExpectAnswers(qor::IObject& object, std::initializer_list<std::uint32_t> answered) {
    for (const std::uint32_t id :
         {0U, qor::IAllocator::InterfaceId, qor::ITracer::InterfaceId,
          qor::IObjectFactory::InterfaceId, ILocalizationManager::InterfaceId,
          IConstruct::InterfaceId, ILocalizer::InterfaceId, ICultureConverter::InterfaceId,
          IErrorListener::InterfaceId, qor::IIO::InterfaceId}) {
        const bool answers = std::count(answered.begin(), answered.end(), id) != 0;
        void* asked = &asked;
        EXPECT_EQ(object.QueryInterface(id, &asked),
                  answers ? qor::rcOk : qor::rcInterfaceNotSupported);
        ASSERT_EQ(asked != nullptr, answers) << id;
        EXPECT_EQ(asked == &object, answers && id != IConstruct::InterfaceId) << id;
        if (answers) {
            EXPECT_EQ(object.Release(), 1U);
        }
    }
    EXPECT_EQ(object.QueryInterface(0, nullptr), qor::rcInvalidArgument);
    EXPECT_EQ(References(object), 1U);
}

TEST_F(ModuleTest, EveryClassAnswersItsInterfacesOnly) {
    for (const std::uint32_t classId :
         {class_id::LocalizationManager, class_id::CultureConverter}) {
        ExpectAnswers(*Factory(classId), {0, qor::IObjectFactory::InterfaceId});
    }
    const auto converter = module.CreateCultureConverter(*services);
    ExpectAnswers(*converter, {0, ICultureConverter::InterfaceId});
    manager = MakeManager();
    ExpectAnswers(*manager, {0, ILocalizationManager::InterfaceId, IConstruct::InterfaceId});
    tree.Write("neutral/app/a", "");
    ASSERT_EQ(Init(tree.Path()), qor::rcOk);
    const auto localizer = MakeLocalizer(u"app");
    ExpectAnswers(*localizer, {0, ILocalizer::InterfaceId});
    qor::objptr_t<ILocalizer> overMemory;
    ASSERT_EQ(CreateLocalizer(Kind::Buffers, u"", Culture(), nullptr, overMemory.Ref()), qor::rcOk);
    ExpectAnswers(*overMemory, {0, ILocalizer::InterfaceId});
    qor::objptr_t<qor::IIO> stream;
    ASSERT_EQ(localizer->GetStream(u"a", stream.Ref()), qor::rcOk);
    ExpectAnswers(*stream, {0, qor::IIO::InterfaceId});
    ExpectHeldBy(6);  // the manager's own error listener is the sixth
}

TEST_F(ModuleTest, UnknownClassesAndInterfacesGiveNullAndNullIsRefused) {
    void* out = this;
    EXPECT_EQ(getObjectFactory(nullptr, 0x12345678, &out), qor::rcNotImplemented);
    EXPECT_EQ(out, nullptr);
    const auto factory = Factory(class_id::LocalizationManager);
    out = this;
    EXPECT_EQ(factory->CreateObject(services.get(), ILocalizer::InterfaceId, &out),
              qor::rcInterfaceNotSupported);
    EXPECT_EQ(out, nullptr);
    out = this;
    EXPECT_EQ(factory->CreateObject(nullptr, 0, &out), qor::rcInvalidArgument);
    EXPECT_EQ(out, this);
    EXPECT_EQ(factory->CreateObject(services.get(), 0, nullptr), qor::rcInvalidArgument);
    for (const std::uint32_t classId : {class_id::CultureConverter, 0x12345678U}) {
        EXPECT_EQ(getObjectFactory(services.get(), classId, nullptr), qor::rcInvalidArgument);
    }
}

TEST_F(ModuleTest, CannotUnloadWhileAFactoryOrAnObjectLives) {
    auto factory = Factory(class_id::CultureConverter);
    EXPECT_FALSE(module.CanUnload());
    qor::objptr_t<ICultureConverter> converter;
    ASSERT_EQ(factory->CreateObject(services.get(), 0, Out(converter)), qor::rcOk);
    factory = nullptr;
    EXPECT_FALSE(module.CanUnload());
}

TEST_F(ModuleTest, ObjectsNeedAnAllocatorAndCanDoWithoutATracer) {
    const auto fails = [] { return qor::rcLocked; };
    const auto givesNone = [] { return qor::rcFalse; };
    const struct {
        int lookup;  // of the allocator, the allocator again or the tracer
        std::function<qor::result_t()> happens;
        qor::result_t code;
    } cases[] = {{1, fails, qor::rcLocked}, {1, givesNone, qor::rcUnexpected},
                 {2, fails, qor::rcLocked}, {2, givesNone, qor::rcUnexpected},
                 {3, fails, qor::rcLocked}, {3, givesNone, qor::rcOk}};
    const auto factory = Factory(class_id::LocalizationManager);
    for (const auto& expected : cases) {
        int lookups = 0;
        services->intercept = [&] {
            return ++lookups == expected.lookup ? expected.happens() : qor::rcOk;
        };
        EXPECT_EQ(factory->CreateObject(services.get(), 0, Out(manager)), expected.code);
        EXPECT_EQ(static_cast<bool>(manager), expected.code == qor::rcOk);
        EXPECT_EQ(allocator.Live(), manager ? 1 : 0);
    }
    services->intercept = [] { return qor::rcOk; };
    EXPECT_EQ(manager->Init(u"none", u""), qor::rcUnspecifiedError);
    services->intercept = fails;
    EXPECT_EQ(factory->CreateObject(services.get(), 0, nullptr), qor::rcLocked);
}

TEST_F(ModuleTest, WhatTheLocatorThrowsIsTraced) {
    if (!qor::platform::kExceptionsPass) {
        GTEST_SKIP() << "no exception passes";
    }
    const auto factory = Factory(class_id::LocalizationManager);
    for (const int thrown : {1, 2}) {
        int lookups = 0;
        services->intercept = [&]() -> qor::result_t {
            if (++lookups != thrown) {
                return qor::rcOk;
            }
            if (thrown == 1) {
                throw std::runtime_error("host failed");
            }
            throw 42;
        };
        EXPECT_EQ(factory->CreateObject(services.get(), 0, Out(manager)), qor::rcUnknownException);
    }
    services->intercept = [] { return qor::rcOk; };
    EXPECT_EQ(allocator.Live(), 0);
}

}  // namespace
