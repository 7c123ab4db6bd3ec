// Fuzzes the way back of texts: files that may be XLIFF. What is no good file is refused in words; of what is
// one, each translation is imported or named as impossible, and the localisation file stays without mistakes.
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "Input.h"
#include "exchange/import_file.h"
#include "source/edits.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"
#include "xliff/XliffFormat.h"

namespace {

using lm_exchange::ScopeTexts;
using lm_fuzz::Require;

/// Of a culture that has no texts yet, so that a file with few of them is whole.
const ScopeTexts& Texts() {
    static const lm_tree::Tree tree(lm_tree::PathOf(SAMPLES), {});
    static const ScopeTexts texts(tree, lm_tree::RequestedCulture("fr"),
                                  lm_tree::ChooseReference(tree, ""), "main", {});
    return texts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const lm_xliff::XliffFormat format;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const lm_exchange::Import import =
            ImportFile(format.Read("fuzzed", bytes), format, Texts());
        const std::string after = Apply(Texts().Own().Bytes(), import.changes.Edits());
        Require(lm_source::Document(after).Mistakes().empty(), "the file stays without mistakes");
        Require(import.errors.size() <= Texts().Texts().size(), "a text is named once");
    } catch (const std::runtime_error& refused) {
        Require(*refused.what() != '\0', "a refusal says why");
    }
    return 0;
}
