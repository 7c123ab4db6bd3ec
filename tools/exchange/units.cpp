#include "exchange/units.h"

namespace lm_exchange {

std::string UnitId(const ScopeTexts& texts, const ScopeTexts::Text& text, const Unit& unit) {
    return texts.Scope() + '|' + text.key + (unit.number.empty() ? "" : '|' + unit.number);
}

std::vector<std::string> NotesOf(const ScopeTexts::Text& text, const Unit& unit) {
    std::vector<std::string> notes = text.comments;
    if (!unit.number.empty()) {
        notes.push_back("stands for {" + unit.number + "} in '" + text.key + '\'');
    }
    return notes;
}

bool IsOpen(const ScopeTexts::Text& text, const Unit& unit) {
    return unit.own.empty() || text.progress == ScopeTexts::Progress::Stale ||
           text.exchange.HasOtherFormCount();
}

std::vector<std::string> TargetsOf(const ScopeTexts& texts, const Unit& unit) {
    std::vector<std::string> targets = unit.own;
    targets.resize(unit.isPlural ? texts.FormCount() : 1);
    return targets;
}

}  // namespace lm_exchange
