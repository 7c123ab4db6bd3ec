// Bounds how deep forms may stand inside each other.
#pragma once

#include <boost/range/iterator_range_core.hpp>
#include <string>

#include "NestingLimitExceeded.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Parsers and resolvers recurse into nested forms on the stack of a host's thread. The limit is far
/// beyond what texts need, and what it takes of a stack stands in the guide for hosts.
inline constexpr int kMaxNesting = 64;

/// Counts the openings that a parser has passed and not closed. A parser that fails after an opening
/// ends, so that nothing has to be counted back.
class NestingGuard {
public:
    /// @param what  what is nested, for the message; static.
    explicit NestingGuard(const char* what) : what_(what) {}

    /// @throws NestingLimitExceeded at the opening that is one too many.
    void Enter(const boost::iterator_range<const char16_t*>& opening) {
        if (depth_ == kMaxNesting) {
            throw NestingLimitExceeded(
                opening.begin(), "at most " + std::to_string(kMaxNesting) + " nested " + what_);
        }
        ++depth_;
    }

    void Leave() { --depth_; }

private:
    const char* what_;
    int depth_ = 0;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
