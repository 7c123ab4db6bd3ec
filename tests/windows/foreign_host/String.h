// Strings as they pass between host and module.
#pragma once

#include "system.h"

namespace foreign_host {

struct __declspec(novtable) IObject {
    virtual uint32 AddRef() = 0;
    virtual uint32 Release() = 0;
    virtual Code QueryInterface(uint32 id, void** out) = 0;
};

struct __declspec(novtable) IAllocator : IObject {
    virtual void* Alloc(size bytes) = 0;
    virtual void* Reserved(void* block, size bytes) = 0;
    virtual void Free(void* block) = 0;
};

/// Of 16 or of 8 bits; short texts live in the string itself.
template <class Unit>
struct String {
    Unit* data = own;
    uint32 length = 0;
    uint32 capacity = 16 / sizeof(Unit) - 1;
    IAllocator* allocator = nullptr;
    Unit own[16 / sizeof(Unit)] = {};

    String() = default;
    explicit String(const Unit* text) {
        while (text[length] != 0) {
            ++length;
        }
        if (length > capacity) {
            data = static_cast<Unit*>(HeapAlloc(GetProcessHeap(), 0, (length + 1) * sizeof(Unit)));
            capacity = length;
        }
        memcpy(data, text, (length + 1) * sizeof(Unit));
    }
    String(const String&) = delete;
    ~String() {
        if (data != own && allocator != nullptr) {
            allocator->Free(data);
        } else if (data != own) {
            HeapFree(GetProcessHeap(), 0, data);
        }
        if (allocator != nullptr) {
            allocator->Release();
        }
    }

    bool Is(const Unit* text) const {
        for (uint32 i = 0; i < length; ++i) {
            if (text[i] == 0 || text[i] != data[i]) {
                return false;
            }
        }
        return text[length] == 0 && data[length] == 0;
    }

    bool Has(const Unit* text) const {
        for (uint32 i = 0; i < length; ++i) {
            uint32 same = 0;
            while (text[same] != 0 && i + same < length && data[i + same] == text[same]) {
                ++same;
            }
            if (text[same] == 0) {
                return true;
            }
        }
        return false;
    }
};
using String16 = String<char16_t>;
using String8 = String<char>;

}  // namespace foreign_host
