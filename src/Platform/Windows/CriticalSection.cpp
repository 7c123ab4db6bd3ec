#include "CriticalSection.h"

#include <new>

#include "System.h"

namespace qor {

namespace {

CRITICAL_SECTION* Of(std::byte* system) noexcept {
    return std::launder(reinterpret_cast<CRITICAL_SECTION*>(system));
}

}  // namespace

CriticalSection::CriticalSection() noexcept {
    static_assert(sizeof system_ == sizeof(CRITICAL_SECTION));
    static_assert(alignof(CRITICAL_SECTION) == alignof(void*));
    ::InitializeCriticalSection(new (static_cast<void*>(system_)) CRITICAL_SECTION);
}

CriticalSection::~CriticalSection() {
    ::DeleteCriticalSection(Of(system_));
}

void CriticalSection::lock() noexcept {
    ::EnterCriticalSection(Of(system_));
}

void CriticalSection::unlock() noexcept {
    ::LeaveCriticalSection(Of(system_));
}

}  // namespace qor
