// What the host gives to the module. Nothing here is destroyed but by its scope.
#pragma once

#include "expect.h"
#include "interfaces.h"

namespace foreign_host {

template <class Interface>
struct HostObject : Interface {
    uint32 references = 1;

    uint32 AddRef() override { return ++references; }
    uint32 Release() override { return --references; }
    Code QueryInterface(uint32 /*id*/, void** out) override {
        *out = nullptr;
        return static_cast<Code>(0x80000001);
    }
};

struct Allocator : HostObject<IAllocator> {
    int blocks = 0;

    void* Alloc(size bytes) override {
        ++blocks;
        return HeapAlloc(GetProcessHeap(), 0, bytes);
    }
    void* Reserved(void* /*block*/, size /*bytes*/) override { return nullptr; }
    void Free(void* block) override {
        --blocks;
        HeapFree(GetProcessHeap(), 0, block);
    }
};

struct Tracer : HostObject<ITracer> {
    int records = 0;
    char buffer[4096] = {};

    Code RequestRecord(uint32 level, char** record, uint32 capacity) override {
        *record = buffer;
        return level == 300 && capacity <= sizeof buffer ? 0 : 1;
    }
    Code WriteRecord(char* record, uint32 length) override {
        EXPECT(record == buffer && length < sizeof buffer);
        ++records;
        return 0;
    }
};

struct Locator : HostObject<IServiceLocator> {
    Allocator* allocator = nullptr;
    Tracer* tracer = nullptr;

    Code GetService(uint32 id, size reserved, void** out) override {
        IObject* const service = id == kAllocator ? static_cast<IObject*>(allocator) : tracer;
        if (reserved != 0 || (id != kAllocator && id != kTracer)) {
            return static_cast<Code>(0x80000001);
        }
        service->AddRef();
        *out = service;
        return 0;
    }
};

/// Writes a text into a string of the other side, whose memory it takes for that.
inline void Assign(String16& to, const char16_t* text, uint32 length) {
    if (length > to.capacity) {
        const size bytes = (length + 1) * sizeof(char16_t);
        auto* const storage =
            static_cast<char16_t*>(to.allocator != nullptr ? to.allocator->Alloc(bytes)
                                                           : HeapAlloc(GetProcessHeap(), 0, bytes));
        if (to.data != to.own && to.allocator != nullptr) {
            to.allocator->Free(to.data);
        } else if (to.data != to.own) {
            HeapFree(GetProcessHeap(), 0, to.data);
        }
        to.data = storage;
        to.capacity = length;
    }
    memcpy(to.data, text, length * sizeof(char16_t));
    to.data[length] = 0;
    to.length = length;
}

struct Params : HostObject<IParamResolver> {
    const char16_t* count = u"3";
    int asked = 0;
    bool fails = false;  // as code does that touches what it must not

    Code Resolve(const String16& name, String16& result) override {
        ++asked;
        EXPECT(result.length == 0);
        if (fails) {
            RaiseException(0xE0000001, 0, 0, nullptr);
        }
        if (name.Is(u"count")) {
            Assign(result, count, 1);
        } else if (name.Is(u"userName")) {
            Assign(result, u"Ada, a lady whose name takes memory", 35);
        } else {
            return kNotFound;
        }
        return 0;
    }
};

struct Errors : HostObject<IErrorListener> {
    int heard = 0;

    Code OnDebug(const String8& /*text*/) override { return 0; }
    Code OnInfo(const String8& /*text*/) override { return 0; }
    Code OnError(const String8& text) override {
        EXPECT(text.Has("localization manager error: "));
        ++heard;
        return 0;
    }
};

struct Listener : HostObject<IResolveListener> {
    int kinds[3] = {};

    Code OnResolved(int kind, const String16& source, const String16& name,
                    const String16& value) override {
        EXPECT(kind >= 0 && kind < 3 && name.length > 0 && value.length > 0);
        EXPECT((source.length > 0) == (kind == 0));
        ++kinds[kind];
        return 0;
    }
};

}  // namespace foreign_host
