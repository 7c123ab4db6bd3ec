// Tells a person that a long check goes on.
#pragma once

#include <chrono>
#include <cstddef>

namespace localize {

/// A line on standard error that is written over, and wiped in the end. Only where a person reads
/// it, and only after a second.
class ProgressLine {
public:
    ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() { Wipe(); }

    void Show(std::size_t done, std::size_t all);
    void Wipe();

private:
    using Clock = std::chrono::steady_clock;

    bool isRead_;
    bool isShown_ = false;
    Clock::time_point next_;
};

}  // namespace localize
