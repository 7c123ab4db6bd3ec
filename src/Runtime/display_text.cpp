#include "qor/rtl/error_handling/display_text.h"

#include <typeinfo>

#include "qor/rtl/error_handling/number_text.h"
#include "qor/rtl/text/Cast.h"

namespace qor {

string16_t DisplayText(const Exception& exception) {
    string16_t text = text::Cast<string16_t>(exception.what());
    text.append(u" - ").append(exception.GetMessage().view()).append(u". At ");
    text.append(text::Cast<std::u16string>(exception.GetSourceFile())).append(u"(");
    // Source lines are positive.
    AppendNumber(text, static_cast<std::uint32_t>(exception.GetSourceLine()), {}, NumberFormat());
    text.append(u") ");
    return text;
}

std::string NarrowDisplayText(const Exception& exception) {
    std::string text;
    for (const Exception* link = &exception; link != nullptr; link = link->GetInner()) {
        if (link != &exception) {
            text += ';';
        }
        try {
            text += text::Cast<std::string>(DisplayText(*link).view());
        } catch (const std::bad_cast&) {
            text += "<Exception display text conversion error>";
        }
    }
    return text;
}

}  // namespace qor
