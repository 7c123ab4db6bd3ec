#include "lsp/OpenText.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "lsp/RequestError.h"
#include "lsp/members.h"
#include "lsp/places.h"

namespace lm_lsp {

namespace {

/// Offsets of a text have 31 bits.
constexpr std::size_t kLargest = std::numeric_limits<std::int32_t>::max();

lm_source::LineTable LinesOf(const std::string& bytes) {
    if (bytes.size() > kLargest) {
        throw RequestError(ErrorCode::InvalidParams, "the text is too large");
    }
    return {bytes, {0, static_cast<std::uint32_t>(bytes.size())}};
}

}  // namespace

OpenText::OpenText(std::string bytes, std::optional<std::int64_t> version)
    : bytes_(std::move(bytes)), lines_(LinesOf(bytes_)), version_(version) {}

void OpenText::Change(const Json& changes, std::optional<std::int64_t> version) {
    if (version && version_ && *version <= *version_) {
        throw RequestError(ErrorCode::InvalidParams,
                           "a change of version " + std::to_string(*version) +
                               " came after version " + std::to_string(*version_));
    }
    std::string bytes = bytes_;
    lm_source::LineTable lines = lines_;
    for (const Json& change : changes) {
        const std::string& text = StringAt(change, "text");
        if (!change.contains("range")) {
            bytes = text;
        } else {
            const auto [begin, end] =
                std::minmax({lines.OffsetOf(bytes, ReadPlace(change, "range.start")),
                             lines.OffsetOf(bytes, ReadPlace(change, "range.end"))});
            bytes.replace(begin, end - begin, text);
        }
        lines = LinesOf(bytes);
    }
    bytes_ = std::move(bytes);
    lines_ = std::move(lines);
    version_ = version;
}

std::optional<std::int64_t> VersionOf(const Json& document) {
    const Json& version = Find(document, "version");
    return version.is_number_integer() ? std::optional(version.get<std::int64_t>()) : std::nullopt;
}

}  // namespace lm_lsp
