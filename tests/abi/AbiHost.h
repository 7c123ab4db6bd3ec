// A host written from the binary interface alone: tables of function pointers and plain structures,
// and no header of the project. It stands for the hosts that were built elsewhere.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Listeners.h"
#include "TempTree.h"

namespace abi_host {

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
