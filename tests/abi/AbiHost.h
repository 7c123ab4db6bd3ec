// A host written from the binary interface alone: tables of function pointers and plain structures,
// and no header of the project. It stands for the hosts that were built elsewhere.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "TempTree.h"

namespace abi_host {

using Result = std::int32_t;

constexpr Result Code(std::uint32_t value) {
    return static_cast<Result>(value);
}

inline constexpr Result kOk = 0;
inline constexpr Result kFalse = 1;
inline constexpr Result kInterfaceNotSupported = Code(0x80000001);
inline constexpr Result kNotSupported = Code(0x80000042);
inline constexpr Result kNotImplemented = Code(0x80000043);
inline constexpr Result kInvalidArgument = Code(0x80000046);
inline constexpr Result kUnspecifiedError = Code(0x8000004B);
inline constexpr Result kNotFound = Code(0x8000004C);
inline constexpr Result kInvalidState = Code(0x8000006A);

inline constexpr std::uint32_t kAllocatorId = 0x9CCA5603;
inline constexpr std::uint32_t kTracerId = 0x6EF3329B;
inline constexpr std::uint32_t kFactoryId = 0x80077A33;
inline constexpr std::uint32_t kManagerId = 0x9E168F3F;
inline constexpr std::uint32_t kConstructId = 0xA2C68B41;
inline constexpr std::uint32_t kLocalizerId = 0xD4AEF19D;
inline constexpr std::uint32_t kConverterId = 0x465EBE3F;
inline constexpr std::uint32_t kErrorListenerId = 0x3E9CBC27;
inline constexpr std::uint32_t kStreamId = 0x0000000A;

inline constexpr std::uint32_t kManagerClass = 0x70B22AA2;
inline constexpr std::uint32_t kConverterClass = 0xBCE7112A;

// The slots after the three that every object has.
enum ManagerSlot { kInit = 3, kFromFiles, kInitEx, kFromBuffer, kFromBuffers };
enum LocalizerSlot { kGetString = 3, kGetStream, kHasResource, kHasString, kGetResolved, kGetPath };

using Slot = void (*)();

/// Makes the table entry of a member function: a function that takes the object first.
template <auto Operation>
struct Entry;
template <class Class, class Return, class... Arguments, Return (Class::*Operation)(Arguments...)>
struct Entry<Operation> {
    static Return Run(Class* self, Arguments... arguments) {
        return (self->*Operation)(arguments...);
    }
    operator Slot() const { return reinterpret_cast<Slot>(&Run); }
};

inline constexpr auto kRelaxed = std::memory_order_relaxed;

/// An object of the host. It lives in its scope; its count only tells who holds on to it, and orders
/// no memory accesses, lest it hide a race of the module.
class HostObject {
    const Slot* table_;  // the first word of every object

public:
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    std::uint32_t AddRef() { return references_.fetch_add(1, kRelaxed) + 1; }
    std::uint32_t Release() { return references_.fetch_sub(1, kRelaxed) - 1; }
    std::uint32_t References() const { return references_; }

    /// What the object was told since the last call, each in a line.
    std::string Take() { return std::exchange(told_, ""); }

    /// Makes the operations throw.
    bool throws = false;

protected:
    /// @param operations  the slots after the three that every object has.
    explicit HostObject(std::initializer_list<Slot> operations)
        : slots_{Entry<&HostObject::AddRef>(), Entry<&HostObject::Release>(),
                 Entry<&HostObject::Forbidden>()} {
        slots_.insert(slots_.end(), operations);
        table_ = slots_.data();
    }
    ~HostObject() { EXPECT_EQ(references_, 1U) << "somebody still holds a host object"; }

    /// For the slots that the module never calls.
    Result Forbidden() {
        ADD_FAILURE() << "a slot that the module never calls";
        return kNotSupported;
    }

    void Remember(std::string_view told) {
        const std::lock_guard<std::mutex> lock(mutex_);
        told_.append(told).append("\n");
    }
    void MaybeThrow() const {
        if (throws) {
            throw std::runtime_error("host failed");
        }
    }

private:
    std::vector<Slot> slots_;
    std::atomic<std::uint32_t> references_{1};
    std::mutex mutex_;
    std::string told_;
};

class Allocator : public HostObject {
public:
    Allocator()
        : HostObject({Entry<&Allocator::Alloc>(), Entry<&Allocator::Forbidden>(),
                      Entry<&Allocator::Free>()}) {}
    ~Allocator() { EXPECT_EQ(live_, 0) << "blocks never given back"; }

    int Live() const { return live_; }
    void* Alloc(std::size_t size) {
        if (failAt.load(kRelaxed) > 0 && failAt.fetch_sub(1, kRelaxed) == 1) {
            return nullptr;
        }
        live_.fetch_add(1, kRelaxed);
        return std::malloc(size);
    }
    void Free(void* block) {
        live_.fetch_sub(1, kRelaxed);
        std::free(block);
    }

    /// The n-th call from now fails; 0 for none.
    std::atomic<int> failAt{0};

private:
    std::atomic<int> live_{0};
};

class Tracer : public HostObject {
public:
    Tracer() : HostObject({Entry<&Tracer::RequestRecord>(), Entry<&Tracer::WriteRecord>()}) {}
    ~Tracer() { EXPECT_TRUE(open_.empty()) << "records never written"; }

private:
    Result RequestRecord(std::uint32_t level, char** record, std::uint32_t capacity) {
        constexpr std::uint32_t kEnlarge = 1000;
        const std::lock_guard<std::mutex> lock(openMutex_);
        MaybeThrow();
        std::pair<std::uint32_t, std::vector<char>> opened(level, {});
        if (level == kEnlarge) {
            opened = std::move(open_.at(*record));
            open_.erase(*record);
        }
        opened.second.resize(capacity);
        *record = opened.second.data();
        open_.emplace(*record, std::move(opened));
        return kOk;
    }

    Result WriteRecord(char* buffer, std::uint32_t length) {
        const std::lock_guard<std::mutex> lock(openMutex_);
        Remember(std::to_string(open_.at(buffer).first) + ' ' + std::string(buffer, length));
        open_.erase(buffer);
        return kOk;
    }

    std::mutex openMutex_;
    std::map<char*, std::pair<std::uint32_t, std::vector<char>>> open_;
};

class Services : public HostObject {
public:
    Services() : HostObject({Entry<&Services::GetService>()}) {}

    /// Every object holds each service and the locator once.
    void ExpectHeldBy(std::uint32_t objects) const {
        EXPECT_EQ(References(), 1 + objects);
        EXPECT_EQ(allocator.References(), 1 + objects);
        EXPECT_EQ(tracer.References(), 1 + objects);
    }

    Allocator allocator;
    Tracer tracer;

private:
    Result GetService(std::uint32_t id, std::uintptr_t reserved, void** out) {
        EXPECT_EQ(reserved, 0U);
        HostObject* const service =
            id == kAllocatorId ? static_cast<HostObject*>(&allocator) : &tracer;
        service->AddRef();
        *out = service;
        return kFalse;  // a success, too
    }
};

/// The layout of the framework's strings, and the rules for whoever writes into one.
template <class Char>
struct String {
    using View = std::basic_string_view<Char>;

    String() : String(View()) {}
    String(const Char* text) : String(View(text)) {}
    String(const std::basic_string<Char>& text) : String(View(text)) {}
    explicit String(View text, Allocator* source = nullptr) : allocator(source) {
        if (allocator != nullptr) {
            allocator->AddRef();
        }
        Assign(text);
    }
    String(const String&) = delete;
    String& operator=(const String&) = delete;
    ~String() {
        FreeStorage();
        if (allocator != nullptr) {
            allocator->Release();
        }
    }

    void Assign(View text) {
        if (text.size() > capacity) {
            const std::size_t bytes = (text.size() + 1) * sizeof(Char);
            FreeStorage();
            data = static_cast<Char*>(allocator != nullptr ? allocator->Alloc(bytes)
                                                           : std::malloc(bytes));
            capacity = static_cast<std::uint32_t>(text.size());
        }
        text.copy(data, text.size());
        data[text.size()] = 0;
        size = static_cast<std::uint32_t>(text.size());
    }
    View Text() const {
        EXPECT_EQ(data[size], Char());
        return {data, size};
    }
    bool IsInline() const { return static_cast<const void*>(data) == buffer; }
    std::string Narrow() const { return std::string(data, data + size); }

    Char* data = reinterpret_cast<Char*>(buffer);
    std::uint32_t size = 0;
    std::uint32_t capacity = sizeof(buffer) / sizeof(Char) - 1;
    Allocator* allocator;
    unsigned char buffer[16] = {};

private:
    void FreeStorage() {
        if (!IsInline()) {
            allocator != nullptr ? allocator->Free(data) : std::free(data);
        }
    }
};

using String8 = String<char>;
using String16 = String<char16_t>;
static_assert(sizeof(String8) == 40 && offsetof(String8, buffer) == 24);

struct Culture {
    explicit Culture(std::uint32_t itsLanguage = 8, std::string_view itsRegion = {},
                     std::string_view itsVariant = {}, Allocator* source = nullptr)
        : language(itsLanguage), region(itsRegion, source), variant(itsVariant, source) {}

    std::uint32_t language;
    String8 region;
    String8 variant;
};

struct Settings {
    String16 root;
    String16 alternative;
};

class ErrorListener : public HostObject {
public:
    ErrorListener()
        : HostObject({Entry<&ErrorListener::Forbidden>(), Entry<&ErrorListener::Forbidden>(),
                      Entry<&ErrorListener::OnError>()}) {}

private:
    Result OnError(const String8* text) {
        Remember(text->Text());
        MaybeThrow();
        return kUnspecifiedError;  // nobody asks
    }
};

class ParamResolver : public HostObject {
public:
    ParamResolver() : HostObject({Entry<&ParamResolver::Resolve>()}) {}

    std::map<std::u16string, std::u16string> values;

private:
    Result Resolve(const String16* name, String16* result) {
        MaybeThrow();
        const auto value = values.find(std::u16string(name->Text()));
        if (value == values.end()) {
            return kNotFound;
        }
        result->Assign(value->second);
        return kFalse;  // a success, too
    }
};

class ResolveListener : public HostObject {
public:
    ResolveListener() : HostObject({Entry<&ResolveListener::OnResolved>()}) {}

private:
    Result OnResolved(std::int32_t kind, const String16* source, const String16* name,
                      const String16* value) {
        MaybeThrow();
        Remember(std::to_string(kind) + ' ' + source->Narrow() + '|' + name->Narrow() + '|' +
                 value->Narrow());
        return kUnspecifiedError;  // nobody asks
    }
};

Result GetObjectFactory(void* locator, std::uint32_t classId, void** out);
Result CanUnload();

/// One reference to an object of the module.
class Object {
public:
    Object() = default;
    Object(Object&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Object& operator=(Object&&) = delete;
    ~Object() { Reset(); }

    void Reset() {
        if (object_ != nullptr) {
            Call(1);
            object_ = nullptr;
        }
    }
    void* get() const { return object_; }

    /// For an out argument: gives back what was held.
    void** Out() {
        Reset();
        return &object_;
    }

    template <class... Arguments>
    Result Call(std::size_t slot, const Arguments&... arguments) const {
        using Operation = Result (*)(void*, decltype(Passed(arguments))...);
        const Slot* const table = *static_cast<const Slot* const*>(object_);
        return reinterpret_cast<Operation>(table[slot])(object_, Passed(arguments)...);
    }

    std::uint32_t References() const {
        Call(0);
        return static_cast<std::uint32_t>(Call(1));
    }

private:
    /// Structures are passed by their address.
    template <class Argument>
    static auto Passed(const Argument& argument) {
        if constexpr (std::is_class_v<Argument>) {
            return &argument;
        } else {
            return argument;
        }
    }

    void* object_ = nullptr;
};

struct Localizer : Object {
    /// The text of a key that must have one.
    std::u16string Get(const String16& key) const {
        String16 text;
        EXPECT_EQ(Call(kGetResolved, key, &text, nullptr), kOk);
        return std::u16string(text.Text());
    }
};

/// A host with a directory to put trees into, and a manager that reports to it. In the end everything
/// must have been given back, and reported and traced what the file of reports lists for the test.
class AbiTest : public testing::Test {
protected:
    AbiTest() { EXPECT_EQ(Create(kManagerClass, kManagerId, manager), kOk); }
    ~AbiTest() override;

    Result Create(std::uint32_t classId, std::uint32_t interfaceId, Object& out);
    Result Init(const String16& root, const String16& alternative = {},
                ErrorListener* reportsTo = nullptr);

    /// Has a localizer made from the name of its scope, or from its text in memory; the text is then
    /// of a scope whose name begins with "x_" if that can be chosen.
    /// @param by  which manager makes it, when it is not the one below.
    Result CreateLocalizer(ManagerSlot slot, const String16& scopeOrText, const Culture& culture,
                           ParamResolver* params, void** out, const String16& commonText = {},
                           const Object* by = nullptr);
    Localizer MakeLocalizer(const String16& scope, const Culture& culture = Culture());

    /// A text without what differs from run to run.
    std::string Shown(std::string text) const;

    Services services;
    lm_test::TempTree tree;
    ErrorListener listener;
    ParamResolver resolver;
    Object manager;
    /// What differs from run to run, and what is shown for it.
    std::vector<std::pair<std::string, std::string>> replaced = {
        {"' at .* at (src|source)", "' at <function> at $1"},
        {tree.Root().string(), "<root>"},
        {"\xED\xA0\xBD\xED\xB8\x80", "<D83D><DE00>"},  // as no valid UTF-8 file could hold it
        {"[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}", "<uuid>"}};
};

}  // namespace abi_host
