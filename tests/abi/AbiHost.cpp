#include "AbiHost.h"

#include <dlfcn.h>

#include <fstream>
#include <regex>

namespace abi_host {

namespace {

template <class Function>
Function* Export(const char* name) {
    static void* const library = dlopen(MODULE, RTLD_NOW | RTLD_LOCAL);
    void* const symbol = library != nullptr ? dlsym(library, name) : nullptr;
    return symbol != nullptr ? reinterpret_cast<Function*>(symbol)
                             : throw std::runtime_error(dlerror());
}

/// What a file lists for the present test, below a line with the test's name.
std::string ListedReports() {
    const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string heading = "== " + test.substr(0, test.find('/'));
    std::ifstream file(REPORTS);
    std::string listed;
    bool listing = false;
    for (std::string line; std::getline(file, line);) {
        listing = line.rfind("== ", 0) == 0 ? line == heading : listing;
        listed += listing && line != heading ? line + '\n' : "";
    }
    return listed;
}

}  // namespace

Result GetObjectFactory(void* locator, std::uint32_t classId, void** out) {
    using Function = Result(void*, std::uint32_t, void**);
    return Export<Function>("qorGetObjectFactory")(locator, classId, out);
}

Result CanUnload() {
    return Export<Result()>("qorCanUnloadModule")();
}

AbiTest::~AbiTest() {
    manager.Reset();
    EXPECT_EQ(CanUnload(), kOk);
    services.ExpectHeldBy(0);
    EXPECT_EQ(Shown(listener.Take() + services.tracer.Take()), ListedReports());
}

Result AbiTest::Create(std::uint32_t classId, std::uint32_t interfaceId, Object& out) {
    Object factory;
    const Result code = GetObjectFactory(&services, classId, factory.Out());
    void* const locator = &services;
    return code < 0 ? code : factory.Call(3, locator, interfaceId, out.Out());
}

Result AbiTest::Init(const String16& root, const String16& alternative, ErrorListener* reportsTo) {
    // A counted pointer by value is passed by its address and stays the caller's.
    return reportsTo != nullptr ? manager.Call(kInitEx, root, alternative, &reportsTo)
                                : manager.Call(kInit, root, alternative);
}

Result AbiTest::CreateLocalizer(ManagerSlot slot, const String16& scopeOrText,
                                const Culture& culture, ParamResolver* params, void** out,
                                const String16& commonText, const Object* by) {
    by = by != nullptr ? by : &manager;
    return slot == kFromBuffers
               ? by->Call(slot, String16(u"x_"), scopeOrText, commonText, culture, params, out)
               : by->Call(slot, scopeOrText, culture, params, out);
}

Localizer AbiTest::MakeLocalizer(const String16& scope, const Culture& culture) {
    Localizer localizer;
    EXPECT_EQ(CreateLocalizer(kFromFiles, scope, culture, &resolver, localizer.Out()), kOk);
    return localizer;
}

std::string AbiTest::Shown(std::string text) const {
    for (const auto& [pattern, word] : replaced) {
        text = std::regex_replace(text, std::regex(pattern), word);
    }
    return text;
}

}  // namespace abi_host
