// The linker sends the calls for memory of the process heap to the functions below, through the variables
// that hold the addresses of what is imported.
#include <cstdlib>
#include <new>

#include "Faults.h"
#include "System.h"

namespace lm_test::faults {

namespace {

std::size_t liveBlocks = 0;

using Alloc = void*(WINAPI*)(void* heap, unsigned long flags, std::size_t size);
using Free = int(WINAPI*)(void* heap, unsigned long flags, void* block);

#ifdef _WIN64
extern "C" Alloc realAlloc asm("__real___imp_HeapAlloc");
extern "C" Free realFree asm("__real___imp_HeapFree");
#else
extern "C" Alloc realAlloc asm("___real__imp__HeapAlloc@12");
extern "C" Free realFree asm("___real__imp__HeapFree@12");
#endif

void* WINAPI CountedAlloc(void* heap, unsigned long flags, std::size_t size) {
    void* const memory = Fails(Source::Memory) ? nullptr : realAlloc(heap, flags, size);
    liveBlocks += memory != nullptr ? 1 : 0;
    return memory;
}

int WINAPI CountedFree(void* heap, unsigned long flags, void* block) {
    liveBlocks -= block != nullptr ? 1 : 0;
    return realFree(heap, flags, block);
}

}  // namespace

#ifdef _WIN64
extern "C" Alloc wrappedAlloc asm("__wrap___imp_HeapAlloc");
extern "C" Free wrappedFree asm("__wrap___imp_HeapFree");
#else
extern "C" Alloc wrappedAlloc asm("___wrap__imp__HeapAlloc@12");
extern "C" Free wrappedFree asm("___wrap__imp__HeapFree@12");
#endif
Alloc wrappedAlloc = &CountedAlloc;
Free wrappedFree = &CountedFree;

std::size_t LiveBlocks() {
    return liveBlocks;
}

std::size_t OpenFiles() {
    DWORD handles = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &handles);
    return handles;
}

}  // namespace lm_test::faults

using namespace lm_test::faults;

// The runtime's own memory is no business of the test: it is asked for by more than the component.
void* operator new(std::size_t size) {
    void* const memory = Fails(Source::Memory) ? nullptr : std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    ++liveBlocks;
    return memory;
}

void operator delete(void* memory) noexcept {
    liveBlocks -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    operator delete(memory);
}
