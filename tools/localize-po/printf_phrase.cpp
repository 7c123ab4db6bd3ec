#include "printf_phrase.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "source/Scanner.h"

namespace localize_po {

using lm_exchange::Part;
using lm_exchange::Phrase;

namespace {

/// A name that parameters of localisation files may have.
std::string ValidName(std::string_view name) {
    std::string valid;
    for (const char unit : name) {
        const bool isValid = lm_source::NameLength(std::string("_") + unit) == 2;
        valid += isValid ? unit : '_';
    }
    return lm_source::NameLength(valid) != 0 ? valid : '_' + valid;
}

class PrintfReader {
public:
    explicit PrintfReader(std::string_view text) : rest_(text) {}

    Phrase Read() {
        Phrase phrase;
        while (!rest_.empty()) {
            const std::size_t percent = std::min(rest_.find('%'), rest_.size());
            AppendText(phrase, percent);
            if (rest_.empty()) {
                break;
            }
            const std::string_view before = rest_;
            const std::size_t arguments = arguments_;
            rest_.remove_prefix(1);
            if (const auto part = ReadDirective()) {
                Append(phrase, *part);
            } else {
                rest_ = before;
                arguments_ = arguments;
                AppendText(phrase, 1);
            }
        }
        return phrase;
    }

private:
    void AppendText(Phrase& phrase, std::size_t size) {
        Append(phrase, {Part::Kind::Text, std::string(rest_.substr(0, size))});
        rest_.remove_prefix(size);
    }

    std::string_view TakeAll(std::string_view units) {
        const std::size_t size = std::min(rest_.find_first_not_of(units), rest_.size());
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    std::string_view TakeUpTo(char open, char close) {
        const std::size_t end = rest_.find(close);
        if (rest_.empty() || rest_.front() != open || end == std::string_view::npos) {
            return {};
        }
        const std::string_view taken = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        return taken;
    }

    /// The number before a "$".
    std::string_view TakePosition() {
        const std::string_view before = rest_;
        const std::string_view number = TakeAll("0123456789");
        if (!number.empty() && TakeAll("$").size() == 1) {
            return number;
        }
        rest_ = before;
        return {};
    }

    /// A width or a precision, which may be an argument.
    void TakeSize() {
        if (TakeAll("*").empty()) {
            TakeAll("0123456789");
        } else if (TakePosition().empty()) {
            ++arguments_;
        }
    }

    /// The parameter, or what "%%" says; also "% %", as printf has it.
    std::optional<Part> ReadDirective() {
        const std::string_view name = TakeUpTo('(', ')');
        const std::string position(TakePosition());
        TakeAll("-+ #0'I");
        TakeSize();
        if (!TakeAll(".").empty()) {
            TakeSize();
        }
        TakeAll("hlqLjzt");
        const bool isMacro = !TakeUpTo('<', '>').empty();  // "%<PRIu64>"
        if (!isMacro) {
            const char conversion = rest_.empty() ? '\0' : rest_.front();
            if (std::string_view("diouxXbBeEfFgGaAcsCSpnmr@%").find(conversion) ==
                std::string_view::npos) {
                return std::nullopt;
            }
            rest_.remove_prefix(1);
            if (conversion == '%') {
                return Part{Part::Kind::Text, "%"};
            }
            if (conversion == 'm') {  // the last error, which no argument says
                return Part{Part::Kind::Parameter, "m"};
            }
        }
        if (!name.empty()) {
            return Part{Part::Kind::Parameter, ValidName(name)};
        }
        return Part{Part::Kind::Parameter,
                    'p' + (position.empty() ? std::to_string(++arguments_) : position)};
    }

    std::string_view rest_;
    std::size_t arguments_ = 0;
};

}  // namespace

Phrase PhraseOfPrintf(std::string_view text) {
    return PrintfReader(text).Read();
}

}  // namespace localize_po
