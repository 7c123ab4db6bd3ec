// The time that a request takes.
#pragma once

#include "localization_manager/host/detail/CurrentCall.h"

namespace localization_manager::host::detail {

/// Makes a request the thread's, and the one before again at the end of the block.
class CallScope {
public:
    CallScope(CurrentCall& calls, Call& call) noexcept
        : calls_(calls), before_(calls.Exchange(&call)) {}
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;
    ~CallScope() { calls_.Exchange(before_); }

private:
    CurrentCall& calls_;
    Call* const before_;
};

}  // namespace localization_manager::host::detail
