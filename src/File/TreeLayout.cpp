#include "TreeLayout.h"

#include "CultureNames.h"
#include "FromUtf8.h"
#include "qor/rtl/text/Cast.h"

namespace LocalizationManager::File {

using localization_manager::Culture;
using localization_manager::Language;
using localization_manager::LanguageToIsoName;

namespace tree_layout = localization_manager::tree_layout;

namespace {

std::u16string IsoName(Language language) {
    return qor::text::Cast<std::u16string>(LanguageToIsoName(language));
}

}  // namespace

std::vector<std::u16string> CultureDirectories(const Culture& culture) {
    return tree_layout::CultureDirectories(IsoName(culture.language),
                                           Text::FromUtf8(culture.region.view()),
                                           Text::FromUtf8(culture.variant.view()));
}

std::vector<std::vector<std::u16string>> PluralRuleDirectories(
    const StringLocalizing::Model::PluralFormRuleId& id) {
    return tree_layout::PluralRuleDirectories(IsoName(static_cast<Language>(id.language)),
                                              Text::FromUtf8(id.region));
}

}  // namespace LocalizationManager::File
