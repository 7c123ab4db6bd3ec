// Fuzzes the parser of localisation files: what it has read, printed as a source, is read again.
#include "DictionaryText.h"
#include "Input.h"
#include "ParsingException.h"
#include "localization_manager/host/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lm_test::model::ResourceDictionary dictionary;
    try {
        lm_test::ParseInto(dictionary, lm_fuzz::Decode(data, size));
    } catch (const LocalizationManager::StringLocalizing::Parsing::ParsingException&) {
        // The entries before the fault are there.
    }
    const std::string source = lm_test::PrintDictionary(dictionary);
    const auto parsed = lm_test::ParseDictionary(localization_manager::host::ToUtf16(source));
    lm_fuzz::Require(lm_test::PrintDictionary(parsed) == source, "printed entries are read again");
    return 0;
}
