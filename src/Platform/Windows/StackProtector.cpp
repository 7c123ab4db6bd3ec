// What the compiler's checks of stacks and library calls need at run time. The compiler's own library for them
// draws its random number from a further library of the system.
#include <cstdint>

#include "System.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the compiler's
extern "C" {

/// Stands behind what a function keeps on the stack, and is compared before the function returns.
std::uintptr_t __stack_chk_guard = static_cast<std::uintptr_t>(0x2B992DDFA232'0000ULL | 0xFF0A);

/// Makes the value hard to guess, from what an attacker elsewhere cannot know exactly. Runs before anything else
/// of the program or module.
__attribute__((constructor(101), no_stack_protector)) static void DrawStackGuard() {
    LARGE_INTEGER counter;
    ::QueryPerformanceCounter(&counter);
    FILETIME time;
    ::GetSystemTimeAsFileTime(&time);
    std::uint64_t drawn = static_cast<std::uint64_t>(counter.QuadPart) ^
                          (static_cast<std::uint64_t>(time.dwLowDateTime) << 21U) ^
                          (std::uint64_t{::GetCurrentProcessId()} << 32U) ^ ::GetCurrentThreadId() ^
                          reinterpret_cast<std::uintptr_t>(&counter) ^
                          reinterpret_cast<std::uintptr_t>(&__stack_chk_guard);
    drawn *= 0x9E3779B97F4A7C15;
    drawn ^= drawn >> 29U;
    __stack_chk_guard = static_cast<std::uintptr_t>(drawn) & ~std::uintptr_t{0xFF};  // ends strings
}

[[noreturn]] void __stack_chk_fail() {
    constexpr UINT kStackBufferOverrun = 0xC0000409;
    ::TerminateProcess(::GetCurrentProcess(), kStackBufferOverrun);
    __builtin_trap();
}

[[noreturn]] void __chk_fail() {
    __stack_chk_fail();
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
