// Where to go on after a mistake, and what becomes of what was read.
#pragma once

#include <cstdint>
#include <string_view>

#include "source/Scanner.h"
#include "source/Syntax.h"

namespace lm_source {

/// Goes on at the first line after the start of the faulty entry that begins `key =`. The faulty
/// entry may be one before that in which the mistake was met: a string without its closing quote runs
/// on to the next quote, and takes entries for text. It is the last one that begins a line.
class Recovery {
public:
    /// @param scanner  must outlive the object.
    /// @param begin    where the text begins.
    Recovery(std::string_view bytes, const Scanner& scanner, std::uint32_t begin)
        : bytes_(bytes), scanner_(scanner), resumed_(begin) {}

    /// Cuts off what was read from the next entry's line on, or behind the last mistake; what is in
    /// between is skipped.
    /// @param syntax  what was read so far. An entry that the mistake ended is there, with no end.
    /// @return where to go on.
    std::uint32_t Resume(Syntax& syntax);

private:
    std::uint32_t StartOfFaultyEntry(const Syntax& syntax) const;
    std::uint32_t DropFrom(Syntax& syntax, std::uint32_t next) const;
    void CloseLastEntry(Syntax& syntax, std::uint32_t start, std::uint32_t known) const;

    std::string_view bytes_;
    const Scanner& scanner_;
    std::uint32_t resumed_;  // where it went on the last time
};

}  // namespace lm_source
