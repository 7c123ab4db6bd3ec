// Interfaces by their slots, and plain structures.
#pragma once

#include "String.h"

namespace foreign_host {

struct __declspec(novtable) ITracer : IObject {
    virtual Code RequestRecord(uint32 level, char** record, uint32 capacity) = 0;
    virtual Code WriteRecord(char* record, uint32 length) = 0;
};

struct __declspec(novtable) IServiceLocator : IObject {
    virtual Code GetService(uint32 id, size reserved, void** out) = 0;
};

struct __declspec(novtable) IObjectFactory : IObject {
    virtual Code CreateObject(IServiceLocator* locator, uint32 id, void** out) = 0;
};

struct Culture {
    uint32 language = 0;
    String8 region;
    String8 variant;
};

struct Settings {
    String16 root;
    String16 alternative;
};

struct __declspec(novtable) IErrorListener : IObject {
    virtual Code OnDebug(const String8& text) = 0;
    virtual Code OnInfo(const String8& text) = 0;
    virtual Code OnError(const String8& text) = 0;
};

struct __declspec(novtable) IResolveListener : IObject {
    virtual Code OnResolved(int kind, const String16& source, const String16& name,
                            const String16& value) = 0;
};

struct __declspec(novtable) IParamResolver : IObject {
    virtual Code Resolve(const String16& name, String16& result) = 0;
};

struct __declspec(novtable) IIO : IObject {
    virtual Code Read(void* to, uint32 wanted, uint32* read) = 0;
    virtual Code Write(const void* from, uint32 count, uint32* written) = 0;
    virtual Code Seek(int origin, int64 offset, int64* position) = 0;
    virtual Code GetPosition(int64* position) = 0;
    virtual Code GetSize(int64* bytes) = 0;
    virtual Code SetSize(int64 bytes) = 0;
    virtual Code Flush() = 0;
};

struct __declspec(novtable) ILocalizer : IObject {
    virtual Code GetString(const String16& key, String16& result) = 0;
    virtual Code GetStream(const String16& key, IIO** stream) = 0;
    virtual Code HasResource(const String16& key) = 0;
    virtual Code HasString(const String16& key) = 0;
    virtual Code GetResolvedString(const String16& key, String16& result,
                                   IResolveListener* listener) = 0;
    virtual Code GetPath(const String16& key, String16& path) = 0;
};

/// A counted pointer, which functions take by value and give back themselves.
template <class T>
struct Counted {
    T* object;

    explicit Counted(T* counted) : object(counted) {
        if (object != nullptr) {
            object->AddRef();
        }
    }
    Counted(const Counted& other) : Counted(other.object) {}
    ~Counted() {
        if (object != nullptr) {
            object->Release();
        }
    }
};

struct __declspec(novtable) ILocalizationManager : IObject {
    virtual Code Init(const String16& root, const String16& alternative) = 0;
    virtual Code CreateLocalizer(const String16& scope, const Culture& culture,
                                 IParamResolver* params, ILocalizer** out) = 0;
    virtual Code InitEx(const String16& root, const String16& alternative,
                        Counted<IErrorListener> listener) = 0;
    virtual Code CreateLocalizerFromBuffer(const String16& text, const Culture& culture,
                                           IParamResolver* params, ILocalizer** out) = 0;
    virtual Code CreateBufferLocalizer(const String16& prefix, const String16& text,
                                       const String16& common, const Culture& culture,
                                       IParamResolver* params, ILocalizer** out) = 0;
};

struct __declspec(novtable) IConstruct : IObject {
    virtual Code Construct(const Settings* settings) = 0;
};

struct __declspec(novtable) ICultureConverter : IObject {
    virtual Code GetCultureByIsoName(const String8& name, Culture& culture) = 0;
    virtual Code GetLanguageIsoName(uint32 language, String8& name) = 0;
};

constexpr size kPointer = sizeof(void*);
static_assert(sizeof(String16) == (kPointer == 4 ? 32 : 40), "");
static_assert(sizeof(Culture) == (kPointer == 4 ? 68 : 88), "");
static_assert(sizeof(Settings) == (kPointer == 4 ? 64 : 80), "");

constexpr uint32 kAllocator = 0x9CCA5603;
constexpr uint32 kTracer = 0x6EF3329B;
constexpr Code kUnspecifiedError = static_cast<Code>(0x8000004B);
constexpr Code kUnknownException = static_cast<Code>(0x80000072);
constexpr Code kNotFound = static_cast<Code>(0x8000004C);

}  // namespace foreign_host
