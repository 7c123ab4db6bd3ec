#include "ProgressLine.h"

#include <iostream>

#include "Platform.h"

namespace localize {

ProgressLine::ProgressLine()
    : isRead_(Platform::IsErrorOutputTerminal()), next_(Clock::now() + std::chrono::seconds(1)) {}

void ProgressLine::Show(std::size_t done, std::size_t all) {
    if (isRead_ && Clock::now() >= next_) {
        std::cerr << "\rchecking: " << done << " of " << all << " files" << std::flush;
        isShown_ = true;
        next_ = Clock::now() + std::chrono::milliseconds(100);
    }
}

void ProgressLine::Wipe() {
    if (isShown_) {
        std::cerr << "\r\033[K" << std::flush;
        isShown_ = false;
    }
}

}  // namespace localize
