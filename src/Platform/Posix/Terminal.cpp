#include <unistd.h>

#include "Platform.h"

namespace Platform {

bool IsErrorOutputTerminal() noexcept {
    return ::isatty(STDERR_FILENO) == 1;
}

}  // namespace Platform
