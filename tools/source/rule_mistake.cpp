#include "source/rule_mistake.h"

#include "ParsingException.h"
#include "PluralFormRulesParser.h"
#include "localization_manager/host/text.h"
#include "source/Encoding.h"

namespace lm_source {

namespace {

using namespace LocalizationManager::StringLocalizing;

/// The offset of what a number of units stands before.
std::uint32_t OffsetOfUnit(std::string_view bytes, Range content, std::size_t units) {
    std::uint32_t at = content.begin;
    while (units != 0 && at < content.end) {
        const Character next = FirstCharacter(bytes.substr(at, content.end - at));
        units -= next.units;
        at += next.bytes;
    }
    return at;
}

}  // namespace

std::optional<RuleMistake> FindRuleMistake(std::string_view bytes, std::string_view sourceName) {
    const Range content = EncodingOf(bytes).content;
    const std::u16string text =
        localization_manager::host::ToUtf16(bytes.substr(content.begin, content.size()));
    const std::u16string name = localization_manager::host::ToUtf16(sourceName);
    const Parsing::SourceRange range = Parsing::MakeSourceRange(text, name);
    Model::PluralFormRule rule;
    try {
        Parsing::ParsePluralFormRules(range.first, range.last, rule);
    } catch (const Parsing::ParsingException& mistake) {
        return RuleMistake{OffsetOfUnit(bytes, content, mistake.Offset().value_or(0)),
                           mistake.what()};
    }
    return std::nullopt;
}

}  // namespace lm_source
