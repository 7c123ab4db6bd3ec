// The structures that cross the boundary.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Services.h"

namespace abi_host {

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

}  // namespace abi_host
