#include "source/edits.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <tuple>

namespace lm_source {

std::string Apply(std::string_view bytes, std::vector<Edit> edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const Edit& left, const Edit& right) {
        return std::tie(left.range.begin, left.range.end) <
               std::tie(right.range.begin, right.range.end);
    });
    std::string edited;
    std::size_t done = 0;
    for (const Edit& edit : edits) {
        if (edit.range.begin < done || edit.range.end < edit.range.begin ||
            edit.range.end > bytes.size()) {
            throw std::invalid_argument("edits overlap or lie outside the text");
        }
        edited.append(bytes.substr(done, edit.range.begin - done)).append(edit.replacement);
        done = edit.range.end;
    }
    return edited.append(bytes.substr(done));
}

}  // namespace lm_source
