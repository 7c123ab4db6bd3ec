// The calendar on POSIX.
#include <ctime>

#include "Platform.h"

namespace Platform {

std::int64_t CalendarTime() noexcept {
    return static_cast<std::int64_t>(std::time(nullptr));
}

}  // namespace Platform
