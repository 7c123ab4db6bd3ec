#include "exchange/Message.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>

namespace lm_exchange {

using lm_source::Document;
using lm_source::Operand;
using lm_source::OperandKind;

namespace {

class Taker {
public:
    explicit Taker(const Document& document) : document_(document) {}

    Message Take(const lm_source::Entry& entry) {
        message_.phrase = PhraseOf(document_.ValueOf(entry));
        return std::move(message_);
    }

private:
    Phrase PhraseOf(lm_source::Value value) {
        Phrase phrase;
        for (const Operand& operand : value) {
            Append(phrase, PartOf(operand));
        }
        return phrase;
    }

    Part PartOf(const Operand& operand) {
        switch (operand.kind) {
            case OperandKind::Text:
                return {Part::Kind::Text, document_.Text(operand)};
            case OperandKind::Param:
                return {Part::Kind::Parameter, std::string(document_.Name(operand))};
            case OperandKind::KeyRef:
                return {Part::Kind::Reference, std::string(document_.Name(operand))};
            case OperandKind::PluralForm:
                break;
        }
        std::string number = std::to_string(++count_);
        Plural plural{std::string(document_.Name(operand)), {}};
        for (const lm_source::Value form : FormsOf(operand)) {
            plural.forms.push_back(PhraseOf(form));
        }
        message_.plurals[number] = std::move(plural);
        return {Part::Kind::Plural, std::move(number)};
    }

    const Document& document_;
    Message message_;
    std::size_t count_ = 0;
};

using Numbers = std::map<std::string, std::string>;

Phrase Renumbered(Phrase phrase, const Numbers& numbers) {
    for (Part& part : phrase) {
        if (part.kind == Part::Kind::Plural) {
            part.text = numbers.at(part.text);
        }
    }
    return phrase;
}

bool HasReference(const Phrase& phrase) {
    return std::any_of(phrase.begin(), phrase.end(),
                       [](const Part& part) { return part.kind == Part::Kind::Reference; });
}

/// Removes what all forms begin with, up to the last reference in it.
Phrase TakeHead(std::vector<Phrase>& forms) {
    std::size_t size = 0;
    const auto haveAt = [&forms](std::size_t at) {
        return std::all_of(forms.begin(), forms.end(), [&](const Phrase& form) {
            return at < form.size() && form[at] == forms.front()[at];
        });
    };
    for (std::size_t at = 0; haveAt(at); ++at) {
        size = forms.front()[at].kind == Part::Kind::Reference ? at + 1 : size;
    }
    const auto count = static_cast<std::ptrdiff_t>(size);
    Phrase head(forms.front().begin(), forms.front().begin() + count);
    for (Phrase& form : forms) {
        form.erase(form.begin(), form.begin() + count);
    }
    return head;
}

void Reverse(std::vector<Phrase>& forms) {
    for (Phrase& form : forms) {
        std::reverse(form.begin(), form.end());
    }
}

Phrase TakeTail(std::vector<Phrase>& forms) {
    Reverse(forms);
    Phrase tail = TakeHead(forms);
    Reverse(forms);
    std::reverse(tail.begin(), tail.end());
    return tail;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char unit : text) {
        if (unit == '\n') {
            quoted += "\\n";
        } else {
            quoted.append(unit == '\'' || unit == '\\' ? "\\" : "").append(1, unit);
        }
    }
    return quoted + '\'';
}

/// A number that several forms name is written several times, and so is what stands in it.
constexpr std::size_t kMostPlurals = 4096;

class Writer {
public:
    explicit Writer(const Message& message) : message_(message) {}

    std::string Write() { return Join(Expanded(message_.phrase)); }

private:
    /// A phrase whose plural forms are written out: their parts have the source as text.
    Phrase Expanded(const Phrase& phrase) {
        Phrase expanded;
        for (const Part& part : phrase) {
            if (part.kind == Part::Kind::Plural) {
                Append(expanded, ExpandedPlural(part.text));
            } else {
                Append(expanded, part);
            }
        }
        return expanded;
    }

    Phrase ExpandedPlural(const std::string& number) {
        const auto plural = message_.plurals.find(number);
        if (plural == message_.plurals.end()) {
            throw Inexpressible("there is no plural form '{" + number + "}'");
        }
        if (++count_ > kMostPlurals) {
            throw Inexpressible("more than 4096 plural forms would be written");
        }
        if (!open_.insert(number).second) {
            throw Inexpressible("'{" + number + "}' stands in its own forms");
        }
        std::vector<Phrase> forms;
        for (const Phrase& form : plural->second.forms) {
            forms.push_back(Expanded(form));
        }
        open_.erase(number);
        Phrase expanded;
        Phrase tail;
        if (std::any_of(forms.begin(), forms.end(), &HasReference)) {
            expanded = TakeHead(forms);
            tail = TakeTail(forms);
        }
        if (std::any_of(forms.begin(), forms.end(), &HasReference)) {
            throw Inexpressible(
                "a key stands at different places of different plural forms: forms cannot hold "
                "keys, but what all have at their start or end is put around them");
        }
        std::string source = "{$" + plural->second.parameter + ": ";
        for (const Phrase& form : forms) {
            source.append(&form == &forms.front() ? "" : ", ").append(Join(form));
        }
        Append(expanded, Part{Part::Kind::Plural, source + '}'});
        Append(expanded, tail);
        return expanded;
    }

    static std::string Join(const Phrase& phrase) {
        std::string source;
        for (const Part& part : phrase) {
            source += source.empty() ? "" : " + ";
            switch (part.kind) {
                case Part::Kind::Text:
                    source += Quoted(part.text);
                    break;
                case Part::Kind::Parameter:
                    source += '$' + part.text;
                    break;
                case Part::Kind::Reference:
                case Part::Kind::Plural:
                    source += part.text;
                    break;
            }
        }
        return source.empty() ? "''" : source;
    }

    const Message& message_;
    std::set<std::string> open_;
    std::size_t count_ = 0;
};

}  // namespace

Message MessageOf(const Document& document, const lm_source::Entry& entry) {
    return Taker(document).Take(entry);
}

std::string ValueOf(const Message& message) {
    return Writer(message).Write();
}

Message NumberedLike(const Message& message, const Message& other) {
    Numbers numbers;
    std::set<std::string> taken;
    std::size_t next = other.plurals.size();
    // In the order of the numbers, which that of their texts is not.
    for (std::size_t count = 1; count <= message.plurals.size(); ++count) {
        const std::string number = std::to_string(count);
        const std::string& parameter = message.plurals.at(number).parameter;
        std::string like;
        for (std::size_t candidate = 1; candidate <= other.plurals.size() && like.empty();
             ++candidate) {
            const auto found = other.plurals.find(std::to_string(candidate));
            if (found != other.plurals.end() && found->second.parameter == parameter &&
                taken.insert(found->first).second) {
                like = found->first;
            }
        }
        numbers[number] = like.empty() ? std::to_string(++next) : like;
    }
    Message numbered{Renumbered(message.phrase, numbers), {}};
    for (const auto& [number, plural] : message.plurals) {
        Plural& copy = numbered.plurals[numbers.at(number)];
        copy.parameter = plural.parameter;
        for (const Phrase& form : plural.forms) {
            copy.forms.push_back(Renumbered(form, numbers));
        }
    }
    return numbered;
}

}  // namespace lm_exchange
