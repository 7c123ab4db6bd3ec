#include "source/Syntax.h"

#include <cstdint>

namespace lm_source {

void AddLastKey(Syntax& syntax, std::string_view bytes) {
    const auto last = static_cast<std::uint32_t>(syntax.entries.size() - 1);
    if (const auto first = syntax.keys.Add({bytes, syntax.entries, syntax.keyCase}, last)) {
        const Range key = syntax.entries[last].key;
        syntax.mistakes.push_back(
            {MistakeKind::DuplicateKey, key, syntax.entries[*first].key, key.begin});
    }
}

}  // namespace lm_source
