// XLIFF 1.2, the format of agencies' tools.
#pragma once

#include "exchange/Format.h"

namespace lm_xliff {

class XliffFormat : public lm_exchange::Format {
public:
    XliffFormat()
        : Format({"XLIFF", "xlf", "xlf", "unfinished", "what is not UTF-8",
                  "export again and translate on in the new file", "take it out"}) {}

    std::string Write(const lm_exchange::ScopeTexts& texts) const override;
    lm_exchange::TranslatedFile Read(const std::string& path,
                                     const std::string& bytes) const override;
    std::vector<std::string> SourcesOf(const lm_exchange::Unit& unit,
                                       const lm_exchange::ScopeTexts& texts) const override;
    std::vector<std::string> FormNames(const lm_exchange::ScopeTexts& texts) const override;
    bool CanHold(const std::string& text) const override;
};

}  // namespace lm_xliff
