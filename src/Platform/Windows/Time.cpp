// The calendar on Windows.
#include <ctime>

#include "Platform.h"

namespace Platform {

std::int64_t CalendarTime() noexcept {
    return ::_time64(nullptr);
}

}  // namespace Platform
