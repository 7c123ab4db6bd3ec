// A host as the system's other compilers build it: nothing is shared with the module but the numbers of the
// binary interface. No library of any language stands below it.
//     foreign_host MODULE TREE
// Prints the lines whose expectation is not met; their number is the exit status.
#include "host_objects.h"

extern "C" {
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

using namespace foreign_host;

namespace {

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
