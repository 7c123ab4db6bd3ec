// PO, the format of gettext.
#pragma once

#include "exchange/Format.h"

namespace localize_po {

class PoFormat : public lm_exchange::Format {
public:
    PoFormat()
        : Format({"PO", "po", "pot", "fuzzy", "a zero, or what is not UTF-8",
                  "'msgmerge' it with a new export",
                  "take it out, or double the braces if they are meant to be seen"}) {}

    std::string Write(const lm_exchange::ScopeTexts& texts) const override;
    lm_exchange::TranslatedFile Read(const std::string& path,
                                     const std::string& bytes) const override;
    std::vector<std::string> SourcesOf(const lm_exchange::Unit& unit,
                                       const lm_exchange::ScopeTexts& texts) const override;
    std::vector<std::string> FormNames(const lm_exchange::ScopeTexts& texts) const override;
    bool CanHold(const std::string& text) const override;
};

}  // namespace localize_po
