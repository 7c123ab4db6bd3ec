// The linker sends the calls of the component and of the test for memory to the functions below.
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <new>

#include "Faults.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" {
void* __real_malloc(std::size_t size);
void __real_free(void* memory);
}

namespace lm_test::faults {

namespace {

std::size_t liveBlocks = 0;

}  // namespace

std::size_t LiveBlocks() {
    return liveBlocks;
}

std::size_t OpenFiles() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

}  // namespace lm_test::faults

using namespace lm_test::faults;

extern "C" {

void* __wrap_malloc(std::size_t size) {
    void* const memory = Fails(Source::Memory) ? nullptr : __real_malloc(size);
    liveBlocks += memory != nullptr ? 1 : 0;
    return memory;
}

void __wrap_free(void* memory) {
    liveBlocks -= memory != nullptr ? 1 : 0;
    __real_free(memory);
}

}  // extern "C"

void* operator new(std::size_t size) {
    void* const memory = __wrap_malloc(size);
    return memory != nullptr ? memory : throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    __wrap_free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    __wrap_free(memory);
}
// NOLINTEND(bugprone-reserved-identifier)
