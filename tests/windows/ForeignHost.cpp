// A host as the system's other compilers build it: nothing is shared with the module but the numbers of the
// binary interface. No library of any language stands below it.
//     foreign_host MODULE TREE
// Prints the lines whose expectation is not met; their number is the exit status.

using uint8 = unsigned char;
using uint32 = unsigned;
using int64 = long long;
#ifdef _WIN64
using size = unsigned long long;
#else
using size = unsigned;
#endif
using Code = int;

extern "C" {
__declspec(dllimport) void* __stdcall GetProcessHeap();
__declspec(dllimport) void* __stdcall HeapAlloc(void* heap, unsigned long flags, size bytes);
__declspec(dllimport) int __stdcall HeapFree(void* heap, unsigned long flags, void* block);
__declspec(dllimport) void* __stdcall LoadLibraryW(const wchar_t* name);
__declspec(dllimport) void* __stdcall GetProcAddress(void* library, const char* name);
__declspec(dllimport) int __stdcall FreeLibrary(void* library);
__declspec(dllimport) wchar_t* __stdcall GetCommandLineW();
__declspec(dllimport) void* __stdcall GetStdHandle(unsigned long which);
__declspec(dllimport) int __stdcall WriteFile(void* file, const void* bytes, unsigned long count,
                                              unsigned long* written, void* overlapped);
[[noreturn]] __declspec(dllimport) void __stdcall ExitProcess(unsigned status);
__declspec(dllimport) void __stdcall RaiseException(unsigned long code, unsigned long flags,
                                                    unsigned long count, const size* arguments);

// What the compiler calls by itself.
void* memset(void* to, int value, size count) {
    for (size i = 0; i < count; ++i) {
        static_cast<volatile uint8*>(to)[i] = static_cast<uint8>(value);
    }
    return to;
}
void* memcpy(void* to, const void* from, size count) {
    for (size i = 0; i < count; ++i) {
        static_cast<volatile uint8*>(to)[i] = static_cast<const uint8*>(from)[i];
    }
    return to;
}
int _purecall() {
    ExitProcess(99);
}
}

namespace {

// Interfaces, by their slots.

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

unsigned failures = 0;

void Print(const char* text) {
    unsigned long count = 0;
    while (text[count] != 0) {
        ++count;
    }
    WriteFile(GetStdHandle(static_cast<unsigned long>(-11)), text, count, &count, nullptr);
}

void Expect(bool isMet, int line) {
    if (!isMet) {
        char digits[] = "0000: not met\n";
        for (int i = 3; i >= 0; --i, line /= 10) {
            digits[i] = static_cast<char>('0' + line % 10);
        }
        Print(digits);
        ++failures;
    }
}
#define EXPECT(condition) Expect(condition, __LINE__)

// The host's objects. Nothing here is destroyed but by its scope.

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
void Assign(String16& to, const char16_t* text, uint32 length) {
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

using GetObjectFactory = Code(__cdecl*)(IServiceLocator* locator, uint32 classId, void** out);
using CanUnloadModule = Code(__cdecl*)();

template <class Interface>
Interface* Create(GetObjectFactory getObjectFactory, Locator& locator, uint32 classId, uint32 id) {
    void* factory = nullptr;
    void* object = nullptr;
    EXPECT(getObjectFactory(&locator, classId, &factory) == 0);
    EXPECT(static_cast<IObjectFactory*>(factory)->CreateObject(&locator, id, &object) == 0);
    EXPECT(static_cast<IObjectFactory*>(factory)->Release() == 0);
    return static_cast<Interface*>(object);
}

void AskForTexts(ILocalizer& localizer, Params& params, Errors& errors, Allocator& allocator) {
    Listener listener;
    String16 text;
    EXPECT(localizer.GetString(String16(u"Greeting"), text) == 0);
    EXPECT(text.Is(u"Willkommen zur\u00FCck, Ada, a lady whose name takes memory!"));
    EXPECT(localizer.GetResolvedString(String16(u"files.selected"), text, &listener) == 0);
    EXPECT(text.Is(u"3 Dateien ausgew\u00E4hlt"));
    EXPECT(listener.kinds[0] > 0 && listener.kinds[1] > 0 && listener.kinds[2] == 1);
    EXPECT(listener.references == 1);
    params.count = u"1";
    EXPECT(localizer.GetString(String16(u"Files.Selected"), text) == 0);
    EXPECT(text.Is(u"1 Datei ausgew\u00E4hlt"));
    EXPECT(localizer.HasString(String16(u"Greeting")) == 0);
    EXPECT(localizer.GetString(String16(u"Nothing.Of.The.Kind"), text) == kUnspecifiedError);
    EXPECT(errors.heard == 1 && text.Is(u"1 Datei ausgew\u00E4hlt"));

    const int before = allocator.blocks;
    {
        String16 counted;
        counted.allocator = &allocator;
        allocator.AddRef();
        EXPECT(localizer.GetString(String16(u"Greeting"), counted) == 0);
        EXPECT(counted.data != counted.own && allocator.blocks == before + 1);
    }
    EXPECT(allocator.blocks == before);
}

/// Whether the request ended with a structured exception of the host.
bool IsBrokenOff(ILocalizer& localizer, const String16& key, String16& text, Listener& listener) {
    __try {
        localizer.GetResolvedString(key, text, &listener);
        return false;
    } __except (1) {
        return true;
    }
}

/// A structured exception of a callback passes through the module, which goes on working. What the request held is
/// lost: the reference on its listener, and memory of texts that are under way.
void BreakOff(ILocalizer& localizer, Params& params, Allocator& allocator) {
    const String16 key(u"Greeting");
    String16 text;
    Listener listener;
    const int blocks = allocator.blocks;
    params.fails = true;
    EXPECT(IsBrokenOff(localizer, key, text, listener));
    params.fails = false;
    EXPECT(text.length == 0);
    EXPECT(listener.references == 2);
    EXPECT(allocator.blocks ==
           blocks + 1);  // the parameter's name, which has more than seven letters
    --allocator.blocks;
    listener.references = 1;
    EXPECT(!IsBrokenOff(localizer, key, text, listener) && listener.references == 1);
    EXPECT(text.length > 0);
}

void AskForFiles(ILocalizer& localizer) {
    String16 path;
    EXPECT(localizer.HasResource(String16(u"logo.png")) == 0);
    EXPECT(localizer.GetPath(String16(u"logo.png"), path) == 0);
    EXPECT(path.Has(u"\\de\\main\\logo.png"));
    IIO* stream = nullptr;
    EXPECT(localizer.GetStream(String16(u"none"), &stream) == kNotFound && stream == nullptr);
    EXPECT(localizer.GetStream(String16(u"logo.png"), &stream) == 0);
    int64 bytes = 0;
    int64 position = 0;
    uint8 start[4] = {};
    uint32 read = 0;
    EXPECT(stream->GetSize(&bytes) == 0 && bytes > 8);
    EXPECT(stream->Seek(0, 1, &position) == 0 && position == 1);
    EXPECT(stream->Read(start, 3, &read) == 0 && read == 3);
    EXPECT(start[0] == 'P' && start[1] == 'N' && start[2] == 'G');
    EXPECT(stream->GetPosition(&position) == 0 && position == 4);
    EXPECT(stream->Seek(2, -2, &position) == 0 && position == bytes - 2);
    EXPECT(stream->Write(start, 1, &read) < 0 && stream->SetSize(1) < 0 && stream->Flush() < 0);
    EXPECT(stream->Release() == 0);
}

void Run(const wchar_t* modulePath, const char16_t* tree) {
    void* const module = LoadLibraryW(modulePath);
    const auto getObjectFactory =
        reinterpret_cast<GetObjectFactory>(GetProcAddress(module, "qorGetObjectFactory"));
    const auto canUnload =
        reinterpret_cast<CanUnloadModule>(GetProcAddress(module, "qorCanUnloadModule"));
    if (getObjectFactory == nullptr || canUnload == nullptr) {
        EXPECT(false);
        return;
    }
    Allocator allocator;
    Tracer tracer;
    Locator locator;
    locator.allocator = &allocator;
    locator.tracer = &tracer;
    Params params;
    Errors errors;
    {
        Culture culture;
        auto* const converter =
            Create<ICultureConverter>(getObjectFactory, locator, 0xBCE7112A, 0x465EBE3F);
        EXPECT(converter->GetCultureByIsoName(String8("no such culture"), culture) < 0);
        EXPECT(converter->GetCultureByIsoName(String8("de-a long region indeed"), culture) == 0);
        EXPECT(culture.region.Is("a long region indeed") && culture.language == 13);
        String8 name;
        EXPECT(converter->GetLanguageIsoName(3, name) == 0 && name.Is("zh-Hant"));
        EXPECT(converter->Release() == 0);

        auto* const manager =
            Create<ILocalizationManager>(getObjectFactory, locator, 0x70B22AA2, 0x9E168F3F);
        const String16 root(tree);
        const String16 none;
        ILocalizer* localizer = nullptr;
        EXPECT(manager->CreateLocalizerFromBuffer(String16(u"A = 'b'"), culture, &params,
                                                  &localizer) == kUnknownException);
        EXPECT(manager->InitEx(String16(u"Z:\\no\\such\\tree"), none,
                               Counted<IErrorListener>(&errors)) == kUnspecifiedError);
        EXPECT(tracer.records == 1);
        EXPECT(manager->InitEx(root, none, Counted<IErrorListener>(nullptr)) == 0);
        EXPECT(errors.references == 1);
        EXPECT(manager->InitEx(root, none, Counted<IErrorListener>(&errors)) == 0);
        EXPECT(errors.references == 2);

        void* construct = nullptr;
        Settings settings;
        Assign(settings.root, root.data, root.length);
        EXPECT(manager->QueryInterface(0xA2C68B41, &construct) == 0);
        EXPECT(static_cast<IConstruct*>(construct)->Construct(&settings) == 0);
        EXPECT(static_cast<IConstruct*>(construct)->Release() == 1 && errors.references == 1);
        EXPECT(manager->InitEx(root, none, Counted<IErrorListener>(&errors)) == 0);

        EXPECT(manager->CreateLocalizer(String16(u"main"), culture, &params, &localizer) == 0);
        EXPECT(params.references == 2 && errors.references == 3);
        AskForTexts(*localizer, params, errors, allocator);
        AskForFiles(*localizer);
        BreakOff(*localizer, params, allocator);
        EXPECT(localizer->Release() == 0);

        EXPECT(manager->CreateBufferLocalizer(none, String16(u"A = B + $count"),
                                              String16(u"B = 'own '"), culture, &params,
                                              &localizer) == 0);
        String16 text;
        EXPECT(localizer->GetResolvedString(String16(u"a"), text, nullptr) == 0 &&
               text.Is(u"own 1"));
        EXPECT(localizer->Release() == 0);

        culture.language = 99;
        EXPECT(manager->CreateLocalizer(String16(u"main"), culture, &params, &localizer) == 0);
        EXPECT(localizer->HasResource(String16(u"logo.png")) == kUnknownException);
        EXPECT(localizer->Release() == 0);
        EXPECT(canUnload() == 1);
        EXPECT(manager->Release() == 0);
    }
    EXPECT(canUnload() == 0);
    EXPECT(allocator.blocks == 0 && params.asked > 0);
    EXPECT(allocator.references == 1 && tracer.references == 1 && locator.references == 1);
    EXPECT(params.references == 1 && errors.references == 1);
    EXPECT(FreeLibrary(module) != 0);
}

/// The next word of the command line, which ends with a zero; the words have no blanks.
wchar_t* TakeWord(wchar_t*& line) {
    while (*line == L' ') {
        ++line;
    }
    wchar_t* const word = *line == L'"' ? ++line : line;
    while (*line != 0 && *line != L' ' && *line != L'"') {
        ++line;
    }
    if (*line != 0) {
        *line++ = 0;
    }
    return word;
}

}  // namespace

extern "C" [[noreturn]] void Start() {
    wchar_t* line = GetCommandLineW();
    TakeWord(line);
    const wchar_t* const module = TakeWord(line);
    const wchar_t* const tree = TakeWord(line);
    Run(module, reinterpret_cast<const char16_t*>(tree));
    Print(failures == 0 ? "all expectations met\n" : "");
    ExitProcess(failures);
}
