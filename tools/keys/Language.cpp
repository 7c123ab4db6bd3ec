#include "keys/Language.h"

#include <map>
#include <string>
#include <string_view>

#include "tree/ascii_case.h"
#include "tree/path_text.h"

namespace lm_keys {

std::optional<Language> LanguageOf(const std::filesystem::path& file) {
    using namespace std::string_view_literals;
    static const std::map<Language, std::string_view> extensions = {
        {Language::C, ".c .h .cc .hh .cpp .hpp .cxx .hxx .c++ .h++ .inl .ipp .tpp .m .mm "},
        {Language::Python, ".py .pyi .pyw "},
        {Language::Other,
         ".cs .dart .go .java .js .jsx .mjs .cjs .ts .tsx .kt .kts .qml .scala .swift .vala "}};
    const std::string extension = lm_tree::LowerAscii(lm_tree::Utf8Of(file.extension()));
    for (const auto& [language, list] : extensions) {
        if (!extension.empty() && list.find(extension + ' ') != std::string_view::npos) {
            return language;
        }
    }
    return std::nullopt;
}

}  // namespace lm_keys
