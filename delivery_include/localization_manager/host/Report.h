// Where a host wants to read what the module has to say.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>

#include "localization_manager/host/shortened.h"

namespace localization_manager::host {

/// Hears one text, without a line break at its end, at a level of `qor::trace_level`. The text is whole
/// however long it is; `Shortened` makes one for people of it. Called from whichever thread works in
/// the module, from several at once if the host has several there.
using Report = std::function<void(std::uint32_t level, std::string_view text)>;

/// A report, for a tracer and an error listener alike, that writes every text for people: followed by
/// a line break, and a very long one shortened.
/// @param stream  has to outlive the report and its copies, which take turns in writing to it.
inline Report LinesTo(std::ostream& stream) {
    return [&stream, turn = std::make_shared<std::mutex>()](std::uint32_t /*level*/,
                                                            std::string_view text) {
        const std::lock_guard<std::mutex> lock(*turn);
        stream << Shortened(text).append(1, '\n') << std::flush;
    };
}

}  // namespace localization_manager::host
