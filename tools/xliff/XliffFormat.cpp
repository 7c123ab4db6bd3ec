#include "xliff/XliffFormat.h"

#include "plural/cldr.h"
#include "source/Encoding.h"
#include "xliff/read_xliff.h"
#include "xliff/write_xliff.h"

namespace lm_xliff {

using lm_exchange::ScopeTexts;
using lm_exchange::Unit;

std::string XliffFormat::Write(const ScopeTexts& texts) const {
    return WriteXliff(texts, *this);
}

lm_exchange::TranslatedFile XliffFormat::Read(const std::string& path,
                                              const std::string& bytes) const {
    return ReadXliff(path, bytes);
}

/// The form for 1 is translated from the reference's form for 1, all others from its last one.
std::vector<std::string> XliffFormat::SourcesOf(const Unit& unit, const ScopeTexts& texts) const {
    if (!unit.isPlural) {
        return unit.reference;
    }
    std::vector<std::string> sources(texts.FormCount(), unit.reference.back());
    const std::size_t one = texts.Rule() ? texts.Rule()->FormOf(1).value_or(sources.size()) : 0;
    if (one < sources.size() && sources.size() > 1) {
        sources[one] = unit.reference.front();
    }
    return sources;
}

std::vector<std::string> XliffFormat::FormNames(const ScopeTexts& texts) const {
    if (!texts.Rule()) {
        return {"one", "other"};  // what English has, which most templates are of
    }
    return lm_plural::CategoryNames(*texts.Rule(), texts.Culture()->name);
}

bool XliffFormat::CanHold(const std::string& text) const {
    return lm_source::EncodingOf(text).illFormed.empty();
}

}  // namespace lm_xliff
