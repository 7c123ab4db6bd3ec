#include "exchange/Phrase.h"

#include <algorithm>

namespace lm_exchange {

namespace {

bool IsNumber(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(),
                                        [](char unit) { return unit >= '0' && unit <= '9'; });
}

/// @param rest  begins with a brace that is not doubled.
std::string_view NameAt(std::string_view rest) {
    const std::size_t close = rest.find('}');
    if (rest.front() == '}' || close == std::string_view::npos) {
        throw Inexpressible(std::string("a '") + rest.front() +
                            "' stands alone: double it, or close the braces around a name");
    }
    return rest.substr(1, close - 1);
}

}  // namespace

void Append(Phrase& phrase, const Part& part) {
    const bool isText = part.kind == Part::Kind::Text;
    if (isText && !phrase.empty() && phrase.back().kind == Part::Kind::Text) {
        phrase.back().text += part.text;
    } else if (!isText || !part.text.empty()) {
        phrase.push_back(part);
    }
}

void Append(Phrase& phrase, const Phrase& further) {
    for (const Part& part : further) {
        Append(phrase, part);
    }
}

void Names::Add(const Phrase& phrase) {
    for (const Part& part : phrase) {
        Add(part);
    }
}

void Names::Add(const Part& part) {
    if (part.kind == Part::Kind::Parameter) {
        uses_[part.text].asParameter = true;
    } else if (part.kind == Part::Kind::Reference) {
        uses_[part.text].asReference = true;
    }
}

Part::Kind Names::KindOf(const std::string& name) const {
    const auto found = uses_.find(name);
    if (found == uses_.end()) {
        throw Inexpressible("'{" + name + "}' is no name of this text: double the braces if they " +
                            "are meant to be seen");
    }
    if (found->second.asParameter && found->second.asReference) {
        throw Inexpressible("'{" + name + "}' may be the parameter or the key of that name: " +
                            "change the value in its file");
    }
    return found->second.asParameter ? Part::Kind::Parameter : Part::Kind::Reference;
}

std::string Flat(const Phrase& phrase) {
    std::string flat;
    for (const Part& part : phrase) {
        if (part.kind != Part::Kind::Text) {
            flat.append("{").append(part.text).append("}");
            continue;
        }
        for (const char unit : part.text) {
            flat.append(unit == '{' || unit == '}' ? 2 : 1, unit);
        }
    }
    return flat;
}

Phrase ReadFlat(std::string_view text, const Names& names) {
    Phrase phrase;
    while (!text.empty()) {
        std::size_t used = std::min(text.find_first_of("{}"), text.size());
        if (used != 0) {
            Append(phrase, {Part::Kind::Text, std::string(text.substr(0, used))});
        } else if (text.size() > 1 && text[1] == text[0]) {
            Append(phrase, {Part::Kind::Text, std::string(1, text[0])});
            used = 2;
        } else {
            const std::string name(NameAt(text));
            Append(phrase, {IsNumber(name) ? Part::Kind::Plural : names.KindOf(name), name});
            used = name.size() + 2;
        }
        text.remove_prefix(used);
    }
    return phrase;
}

}  // namespace lm_exchange
