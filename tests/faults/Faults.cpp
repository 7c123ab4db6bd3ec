// The linker sends the calls of the component and of the test to the functions below. A deed is not
// itself at risk.
#include "Faults.h"

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <new>
#include <utility>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" {
void* __real_malloc(std::size_t size);
void __real_free(void* memory);
int __real_open(const char* name, int flags, ...);
int __real_stat(const char* name, struct stat* status);
int __real_lstat(const char* name, struct stat* status);
int __real_fstat(int file, struct stat* status);
ssize_t __real_read(int file, void* destination, std::size_t wanted);
}

namespace lm_test::faults {

namespace {

struct Plan {
    Source source = Source::Memory;
    std::size_t first = 1;
    bool lasts = false;
    Deed deed;
    std::size_t calls = 0;
};

// Memory is asked for before and after `main`, so that the parts in use there need no making.
Plan& ThePlan() {
    static Plan plan;
    return plan;
}

bool isActive = false;
std::size_t liveBlocks = 0;

bool Fails(Source source) {
    if (!isActive || ThePlan().source != source) {
        return false;
    }
    Plan& plan = ThePlan();
    if (++plan.calls < plan.first || (plan.calls > plan.first && !plan.lasts)) {
        return false;
    }
    isActive = false;
    const bool fails = plan.deed();
    isActive = true;
    return fails;
}

bool FileFails() {
    errno = EIO;  // of no interest to calls that go well
    return Fails(Source::Files);
}

}  // namespace

void Start(Source source, std::size_t first, bool lasts, Deed deed) {
    ThePlan() = {source, first, lasts, std::move(deed)};
    isActive = true;
}

bool Stop() {
    isActive = false;
    ThePlan().deed = nullptr;
    return ThePlan().calls >= ThePlan().first;
}

std::size_t LiveBlocks() {
    return liveBlocks;
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

int __wrap_open(const char* name, int flags, ...) {
    return FileFails() ? -1 : __real_open(name, flags);
}

int __wrap_stat(const char* name, struct stat* status) {
    return FileFails() ? -1 : __real_stat(name, status);
}

int __wrap_lstat(const char* name, struct stat* status) {
    return FileFails() ? -1 : __real_lstat(name, status);
}

int __wrap_fstat(int file, struct stat* status) {
    return FileFails() ? -1 : __real_fstat(file, status);
}

ssize_t __wrap_read(int file, void* destination, std::size_t wanted) {
    return FileFails() ? -1 : __real_read(file, destination, wanted);
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
