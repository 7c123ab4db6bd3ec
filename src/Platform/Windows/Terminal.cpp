#include <io.h>

#include <cstdio>

#include "Platform.h"
#include "System.h"

namespace Platform {

bool IsErrorOutputTerminal() noexcept {
    DWORD mode = 0;
    const HANDLE console = ::GetStdHandle(STD_ERROR_HANDLE);
    // A console understands the sequences of a terminal only when told to, and old ones never.
    return ::GetConsoleMode(console, &mode) != FALSE &&
           ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

}  // namespace Platform
