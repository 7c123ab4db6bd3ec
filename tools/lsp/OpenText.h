// A text that is open in the editor, as typed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "lsp/Json.h"
#include "source/LineTable.h"

namespace lm_lsp {

class OpenText {
public:
    OpenText(std::string bytes, std::optional<std::int64_t> version);

    const std::string& Bytes() const noexcept { return bytes_; }

    /// Empty where the editor counts none.
    std::optional<std::int64_t> Version() const noexcept { return version_; }

    /// Takes over changes, one after the other. A range that leaves the text ends at its end.
    /// @throws RequestError for changes that are none, or are of an earlier version; the text is then
    ///         as it was.
    void Change(const Json& changes, std::optional<std::int64_t> version);

private:
    std::string bytes_;
    lm_source::LineTable lines_;
    std::optional<std::int64_t> version_;
};

/// The version of a document of the protocol, if it has one.
std::optional<std::int64_t> VersionOf(const Json& document);

}  // namespace lm_lsp
