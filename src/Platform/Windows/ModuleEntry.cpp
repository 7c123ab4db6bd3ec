// What the system, and the C runtime, call when the module is loaded and unloaded.
#include <bits/c++config.h>

#include "System.h"

namespace __gnu_cxx {

/// Gives back the memory that the C++ runtime keeps for exceptions thrown when memory is short.
void __freeres();  // NOLINT(bugprone-reserved-identifier): the runtime's own

}  // namespace __gnu_cxx

namespace {

/// The module has a C++ runtime of its own, which ends with it while the process goes on. Destroyed by the
/// C runtime when the module is unloaded, after whatever was made later.
struct RuntimeMemory {
    ~RuntimeMemory() { __gnu_cxx::__freeres(); }
} runtimeMemory;

}  // namespace

/// Threads that come and go concern nobody here. That the system refuses, as it does when the runtime has
/// thread-local memory, costs only a call for each.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH) {
        (void)::DisableThreadLibraryCalls(module);
    }
    return TRUE;
}
