// The binary interface by its numbers: identifiers, slots, layouts, and what is passed by its address.
// Hosts that were built elsewhere, and earlier, know it by nothing else.
#include <cstring>

#include "ModuleHost.h"
#include "SystemTraits.h"
#include "localization_manager/LocalizationManagerSettings.h"

namespace {

using namespace lm_test;
using qor::string16_t;
using Result = std::int32_t;

constexpr Result kNotSupported = static_cast<Result>(0x80000042);
constexpr bool kNarrow = sizeof(void*) == 4;
constexpr Result kNotInitialised = static_cast<Result>(0x8000006A);

/// Calls an operation through the table whose address is the first word of every object.
template <class Return = Result, class... Arguments>
Return Call(void* object, std::size_t slot, Arguments... arguments) {
    using Slot = void (*)();
    const Slot* const table = *static_cast<const Slot* const*>(object);
    return reinterpret_cast<MemberFunction<Return, Arguments...>>(table[slot])(object,
                                                                               arguments...);
}

class BinaryInterfaceTest : public ModuleHost {
protected:
    void* Create(std::uint32_t classId, std::uint32_t interfaceId) {
        using GetObjectFactory = Result (*)(void* locator, std::uint32_t classId, void** out);
        void* factory = nullptr;
        void* object = nullptr;
        EXPECT_EQ(
            Export<GetObjectFactory>("qorGetObjectFactory")(services.get(), classId, &factory), 0);
        EXPECT_EQ(Call(factory, 3, services.get(), interfaceId, &object), 0);
        EXPECT_EQ(Call(factory, 1), 0);
        return object;
    }

    string16_t text;
    string16_t none;
};

TEST_F(BinaryInterfaceTest, OfStructures) {
    const string16_t string(u"ab", qor::Allocator<char16_t>(&allocator));
    struct {
        char16_t* data;
        std::uint32_t size, capacity;
        void* allocator;
        char16_t buffer[8];
    } fields;
    static_assert(sizeof fields == sizeof string);
    std::memcpy(&fields, reinterpret_cast<const char*>(&string), sizeof fields);
    EXPECT_EQ(fields.data - string.data(), 0);
    EXPECT_EQ(fields.size * 10 + fields.capacity, 27U);
    EXPECT_EQ(fields.allocator, &allocator);
    EXPECT_EQ(std::u16string(fields.buffer), u"ab");
    const auto offset = [](const auto& record, const auto& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&record);
    };
    const Culture culture;
    EXPECT_EQ(sizeof culture.language, 4U);
    EXPECT_EQ(offset(culture, culture.region), kNarrow ? 4 : 8);
    EXPECT_EQ(offset(culture, culture.variant), kNarrow ? 36 : 48);
    const LocalizationManagerSettings settings;
    EXPECT_EQ(offset(settings, settings.alternative), kNarrow ? 32 : 40);
}

TEST_F(BinaryInterfaceTest, OfHostObjects) {
    void* found = nullptr;
    for (const auto& [id, service] : {std::pair<std::uint32_t, void*>(0x9CCA5603, &allocator),
                                      {0x6EF3329B, services->tracer.get()}}) {
        EXPECT_EQ(Call(services.get(), 3, id, std::uintptr_t{0}, &found), 0);
        EXPECT_EQ(found, service);
        EXPECT_EQ(Call(found, 1), 2);  // the manager has the other
    }
    void* const block = Call<void*>(&allocator, 3, std::size_t{8});
    EXPECT_EQ(allocator.Live(), 2);
    Call<void>(&allocator, 5, block);
    char* record = nullptr;
    EXPECT_EQ(Call(services->tracer.get(), 3, 300U, &record, 8U), 0);
    *record = 'x';
    EXPECT_EQ(Call(services->tracer.get(), 4, record, 1U), 0);
    EXPECT_EQ(services->tracer->TakeRecords(), "300 x\n");

    const string16_t name(u"n");
    params->Set("n", 2);
    EXPECT_EQ(Call(params.get(), 3, &name, &text), 0);
    std::string told = host::ToUtf8(text);
    const auto resolving = Make<host::ResolveListener>(
        [&](ResolveKind kind, const auto& source, const auto& itsName, const auto& value) {
            told += std::to_string(static_cast<int>(kind)) + source + itsName + value;
        });
    EXPECT_EQ(Call(resolving.get(), 3, Result{1}, &none, &name, &text), 0);
    EXPECT_EQ(Call(resolving.get(), 3, Result{2}, &name, &text, &name), 0);
    EXPECT_EQ(Call(resolving.get(), 3, Result{0}, &name, &none, &none), 0);
    const auto reports = Make<host::ErrorListener>(
        [&](std::uint32_t level, auto report) { told.append(report) += std::to_string(level); });
    const qor::string8_t report(" ");
    for (const std::size_t slot : {3U, 4U, 5U}) {
        EXPECT_EQ(Call(reports.get(), slot, &report), 0);
    }
    EXPECT_EQ(told, "21n22n2n0n 700 500 300");
}

TEST_F(BinaryInterfaceTest, OfManagersAndLocalizers) {
    tree.Write("en/Locs/common.lt", "");
    tree.Write("en/Locs/app.lt", "Key = $n + ' files'");
    tree.Write("en/app/Key", "");
    params->Set("n", 2);
    void* const made = Create(0x70B22AA2, 0x9E168F3F);
    void* construct = nullptr;
    ASSERT_EQ(Call(made, 2, 0xA2C68B41U, &construct), 0);
    const LocalizationManagerSettings settings{none, string16_t(tree.Path())};
    EXPECT_EQ(Call(construct, 3, &settings), kNotInitialised);
    EXPECT_EQ(Call(construct, 1), 1);
    EXPECT_EQ(Call(made, 3, &none, &settings.alternative), kNotInitialised);
    EXPECT_EQ(PassCounted(
                  listener,
                  [&](auto passed) { return Call(made, 5, &settings.alternative, &none, passed); }),
              0);

    const Culture culture = MakeCulture(8);
    const string16_t source(u"Key = $n + ' files'"), scope(u"app"), common(u"A=''"), key(u"Key");
    void* localizer[3];
    EXPECT_EQ(Call(made, 4, &scope, &culture, params.get(), &localizer[0]), 0);
    EXPECT_EQ(Call(made, 6, &source, &culture, params.get(), &localizer[1]), 0);
    EXPECT_EQ(Call(made, 7, &scope, &source, &common, &culture, params.get(), &localizer[2]), 0);
    EXPECT_EQ(Call(made, 1), 0);
    void* stream = nullptr;
    EXPECT_EQ(Call(localizer[0], 3, &key, &text), 0);
    EXPECT_EQ(text.view(), u"2 files");
    EXPECT_EQ(Call(localizer[0], 4, &key, &stream), 0);
    EXPECT_EQ(Call(stream, 1), 0);
    EXPECT_EQ(Call(localizer[0], 5, &key), 0);
    EXPECT_EQ(Call(localizer[0], 5, &scope), static_cast<Result>(0x8000004B));
    EXPECT_EQ(Call(localizer[0], 8, &key, &text), 0);
    EXPECT_EQ(text.view(), tree.Path("en/app/Key"));
    for (void* const each : localizer) {
        EXPECT_EQ(Call(each, 6, &key), 0);
        EXPECT_EQ(Call(each, 7, &key, &text, nullptr), 0);
        EXPECT_EQ(text.view(), u"2 files");
        EXPECT_EQ(Call(each, 0), 2);
        EXPECT_EQ(Call(each, 1), 1);
        EXPECT_EQ(Call(each, 1), 0);
    }
}

TEST_F(BinaryInterfaceTest, OfStreamsAndConverters) {
    tree.Write("neutral/app/file", "bytes");
    ASSERT_EQ(Init(tree.Path()), 0);
    qor::objptr_t<qor::IIO> stream;
    ASSERT_EQ(MakeLocalizer(u"app")->GetStream(u"file", stream.Ref()), 0);
    char bytes[8];
    std::uint32_t read = 0;
    std::int64_t number = 0;
    EXPECT_EQ(Call(stream.get(), 5, Result{2}, std::int64_t{-3}, &number), 0);
    EXPECT_EQ(Call(stream.get(), 3, &bytes[0], 2U, &read), 0);
    EXPECT_EQ(std::string(bytes, read) + std::to_string(number), "te2");
    EXPECT_EQ(Call(stream.get(), 6, &number), 0);
    EXPECT_EQ(number, 4);
    EXPECT_EQ(Call(stream.get(), 7, &number), 0);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(Call(stream.get(), 4, &bytes[0], 2U, &read), kNotSupported);
    EXPECT_EQ(Call(stream.get(), 8, std::int64_t{1}), kNotSupported);
    EXPECT_EQ(Call(stream.get(), 9), kNotSupported);

    void* const converter = Create(0xBCE7112A, 0x465EBE3F);
    Culture culture;
    qor::string8_t name("zh-Hant-r-v");
    EXPECT_EQ(Call(converter, 3, &name, &culture), 0);
    EXPECT_EQ(Call(converter, 4, 3U, &name), 0);
    name.append(culture.region.view()).append(culture.variant.view());
    EXPECT_EQ(name.view(), "zh-Hantrv");
    EXPECT_EQ(Call(converter, 1), 0);
}

}  // namespace
