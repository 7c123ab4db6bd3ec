#include "TextCode.h"

#include <boost/numeric/conversion/cast.hpp>
#include <cstdint>
#include <cstring>

namespace LocalizationManager::StringLocalizing::Model {

namespace {

void SetLength(std::u16string& code, std::size_t position, std::size_t length) {
    const auto value = boost::numeric_cast<std::uint32_t>(length);
    std::memcpy(&code[position], &value, sizeof value);
}

}  // namespace

void AppendText(std::u16string& code, std::u16string_view text) {
    const std::size_t position = code.size();
    code.append(kLengthUnits, u'\0');
    SetLength(code, position, text.size());
    code += text;
}

void ExtendText(std::u16string& code, std::size_t position, std::u16string_view text) {
    code += text;
    SetLength(code, position, code.size() - position - kLengthUnits);
}

}  // namespace LocalizationManager::StringLocalizing::Model
