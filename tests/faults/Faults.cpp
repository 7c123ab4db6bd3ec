// The linker sends the calls of the component and of the test to the functions below. A deed is not
// itself at risk.
#include "Faults.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstdlib>
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
    std::size_t left = 0;  // calls until the first deed; 0 when there is no plan
    bool lasts = false;
    bool happened = false;
    Deed deed;
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
    if (plan.left > 1) {
        --plan.left;
        return false;
    }
    if (plan.happened && !plan.lasts) {
        return false;
    }
    plan.happened = true;
    isActive = false;
    const bool fails = plan.deed();
    isActive = true;
    return fails;
}

template <class Call>
int UnlessFileFails(Call call) {
    if (Fails(Source::Files)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(call());
}

void* Allocate(std::size_t size) {
    void* const memory = Fails(Source::Memory) ? nullptr : __real_malloc(size);
    liveBlocks += memory != nullptr ? 1 : 0;
    return memory;
}

void Free(void* memory) {
    liveBlocks -= memory != nullptr ? 1 : 0;
    __real_free(memory);
}

}  // namespace

void Start(Source source, std::size_t first, bool lasts, Deed deed) {
    ThePlan() = {source, first, lasts, false, std::move(deed)};
    isActive = true;
}

bool Stop() {
    isActive = false;
    ThePlan().deed = nullptr;
    return ThePlan().happened;
}

std::size_t LiveBlocks() {
    return liveBlocks;
}

}  // namespace lm_test::faults

using namespace lm_test::faults;

void* operator new(std::size_t size) {
    void* const memory = Allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    Free(memory);
}

extern "C" {

void* __wrap_malloc(std::size_t size) {
    return Allocate(size);
}

void __wrap_free(void* memory) {
    Free(memory);
}

int __wrap_open(const char* name, int flags, ...) {
    return UnlessFileFails([&] { return __real_open(name, flags); });
}

int __wrap_stat(const char* name, struct stat* status) {
    return UnlessFileFails([&] { return __real_stat(name, status); });
}

int __wrap_lstat(const char* name, struct stat* status) {
    return UnlessFileFails([&] { return __real_lstat(name, status); });
}

int __wrap_fstat(int file, struct stat* status) {
    return UnlessFileFails([&] { return __real_fstat(file, status); });
}

ssize_t __wrap_read(int file, void* destination, std::size_t wanted) {
    return UnlessFileFails([&] { return __real_read(file, destination, wanted); });
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
