// Fuzzes the parser of localisation files: what it has read, printed as a source, is read again.
#include "DictionaryText.h"
#include "Input.h"
#include "ParsingException.h"
#include "localization_manager/host/text.h"

namespace {

std::string PrintLiteral(std::u16string_view text) {
    std::string literal = "'";
    for (const char character : localization_manager::host::ToUtf8(text)) {
        literal += character == '\'' || character == '\\' || character == '\n' ? "\\" : "";
        literal += character == '\n' ? 'n' : character;
    }
    return literal + '\'';
}

std::string PrintSource(const lm_test::model::ResourceDictionary& dictionary) {
    std::string source;
    for (const auto& [key, value] : lm_test::EntriesOf(dictionary)) {
        source += lm_test::ToUtf8(key) + '=' + lm_test::PrintValue(value, PrintLiteral) + '\n';
    }
    return source;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lm_test::model::ResourceDictionary dictionary;
    try {
        lm_test::ParseInto(dictionary, lm_fuzz::Decode(data, size));
    } catch (const LocalizationManager::StringLocalizing::Parsing::ParsingException&) {
        // The entries before the fault are there.
    }
    const std::string source = PrintSource(dictionary);
    const auto parsed = lm_test::ParseDictionary(localization_manager::host::ToUtf16(source));
    lm_fuzz::Require(PrintSource(parsed) == source, "printed entries are read again");
    return 0;
}
