#include "AbiHost.h"

#include <dlfcn.h>

#include <cstdlib>
#include <stdexcept>

namespace abi_host {

namespace {

/// What precedes every block, so that a block finds back to its allocator.
struct alignas(std::max_align_t) BlockHeader {
    const Allocator* owner;
};

template <class Function>
Function* Export(const char* name) {
    static void* const library = dlopen(MODULE, RTLD_NOW | RTLD_LOCAL);
    void* const symbol = library != nullptr ? dlsym(library, name) : nullptr;
    return symbol != nullptr ? reinterpret_cast<Function*>(symbol)
                             : throw std::runtime_error(dlerror());
}

}  // namespace

void* Allocator::Alloc(std::size_t size) {
    constexpr auto kRelaxed = std::memory_order_relaxed;
    if (failAt.load(kRelaxed) > 0 && failAt.fetch_sub(1, kRelaxed) == 1) {
        return nullptr;
    }
    live_.fetch_add(1, kRelaxed);
    auto* const header = static_cast<BlockHeader*>(std::malloc(sizeof(BlockHeader) + size));
    header->owner = this;
    return header + 1;
}

void Allocator::Free(void* block) {
    BlockHeader* const header = static_cast<BlockHeader*>(block) - 1;
    EXPECT_EQ(std::exchange(header->owner, nullptr), this) << "not a block of this allocator";
    live_.fetch_sub(1, std::memory_order_relaxed);
    std::free(header);
}

Result Tracer::RequestRecord(std::uint32_t level, char** record, std::uint32_t capacity) {
    constexpr std::uint32_t kEnlarge = 1000;
    const std::lock_guard<std::mutex> lock(mutex_);
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

Result Tracer::WriteRecord(char* buffer, std::uint32_t length) {
    const std::lock_guard<std::mutex> lock(mutex_);
    records_.emplace_back(open_.at(buffer).first, std::string(buffer, length));
    open_.erase(buffer);
    return kOk;
}

void Services::ExpectHeldBy(std::uint32_t objects) const {
    EXPECT_EQ(References(), 1 + objects);
    EXPECT_EQ(allocator.References(), 1 + objects);
    EXPECT_EQ(tracer.References(), 1 + objects);
}

Result Services::GetService(std::uint32_t id, std::uintptr_t reserved, void** out) {
    EXPECT_EQ(reserved, 0U);
    const Result code = answer ? answer(id) : kOk;
    if (code >= 0) {
        HostObject* const service =
            id == kAllocatorId ? static_cast<HostObject*>(&allocator) : &tracer;
        service->AddRef();
        *out = service;
    }
    return code;
}

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
    EXPECT_EQ(services.tracer.Take(), Records());
    EXPECT_EQ(listener.Take(), std::vector<std::string>());
}

Result AbiTest::Create(std::uint32_t classId, std::uint32_t interfaceId, Object& out) {
    Object factory;
    const Result code = GetObjectFactory(&services, classId, factory.Out());
    void* const locator = &services;
    return code < 0 ? code : factory.Call(3, locator, interfaceId, out.Out());
}

Localizer AbiTest::MakeLocalizer(const String16& scope, const Culture& culture) {
    Localizer localizer;
    EXPECT_EQ(manager.CreateLocalizer(scope, culture, &resolver, localizer.Out()), kOk);
    return localizer;
}

std::string AbiTest::InTree(std::string text) const {
    const std::string_view mark = "<root>";
    for (std::size_t at = 0; (at = text.find(mark, at)) != std::string::npos;) {
        text.replace(at, mark.size(), tree.Root().string());
    }
    return text;
}

testing::AssertionResult Matches(const std::string& expected, const std::string& actual) {
    const std::string_view mark = "<function>";
    std::string pattern = expected;
    const std::size_t at = expected.find(mark);
    if (at != std::string::npos && actual.size() + mark.size() > expected.size()) {
        pattern.replace(at, mark.size(),
                        actual.substr(at, actual.size() + mark.size() - expected.size()));
    }
    return actual == pattern ? testing::AssertionSuccess()
                             : testing::AssertionFailure() << "expected\n"
                                                           << expected << "\ngot\n"
                                                           << actual;
}

}  // namespace abi_host
