#include "plural/culture_rule.h"

#include <stdexcept>
#include <string>

#include "FromUtf8.h"
#include "plural/parse_rule.h"
#include "source/Encoding.h"
#include "source/rule_mistake.h"
#include "tree/path_text.h"

namespace lm_plural {

CultureRule RuleOf(const lm_tree::Tree* tree, const lm_tree::CultureName& culture) {
    const auto file = tree != nullptr ? tree->RuleOf(culture) : std::nullopt;
    if (!file) {
        return {PluralRule::BuiltIn(PluralRule::Id(*culture.culture)), file};
    }
    const std::string bytes = tree->Read(*file);
    if (const auto mistake =
            lm_source::FindRuleMistake(bytes, lm_tree::Utf8Of(tree->FullPath(*file)))) {
        throw std::runtime_error(mistake->text);
    }
    const lm_source::Range content = lm_source::EncodingOf(bytes).content;
    const std::string text = bytes.substr(content.begin, content.size());
    return {PluralRule(ParseRule(LocalizationManager::Text::FromUtf8(text))), file};
}

}  // namespace lm_plural
