#include "exchange/Exchange.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

namespace lm_exchange {

namespace {

using Texts = std::vector<std::string>;

/// The only plural form of a message.
const Plural& OnlyPlural(const Message& message) {
    return message.plurals.begin()->second;
}

Texts Flat(const std::vector<Phrase>& phrases) {
    Texts texts;
    for (const Phrase& phrase : phrases) {
        texts.push_back(Flat(phrase));
    }
    return texts;
}

/// The text around the only plural form.
struct Frame {
    std::string head;
    std::string tail;
};

Frame FrameOf(const Message& message) {
    const auto plural =
        std::find_if(message.phrase.begin(), message.phrase.end(),
                     [](const Part& part) { return part.kind == Part::Kind::Plural; });
    return {Flat(Phrase(message.phrase.begin(), plural)),
            Flat(Phrase(plural + 1, message.phrase.end()))};
}

/// The whole text in each form of its only plural form, or the text alone.
Texts WholeTexts(const Message& message) {
    if (!message.IsPlural()) {
        return {Flat(message.phrase)};
    }
    const Frame frame = FrameOf(message);
    Texts texts = Flat(OnlyPlural(message).forms);
    for (std::string& text : texts) {
        text.insert(0, frame.head).append(frame.tail);
    }
    return texts;
}

/// Takes the frame out of all texts that have it.
bool RemoveFrame(Texts& texts, const Frame& frame) {
    const std::size_t around = frame.head.size() + frame.tail.size();
    const bool haveIt = std::all_of(texts.begin(), texts.end(), [&](const std::string& text) {
        return text.size() >= around && text.compare(0, frame.head.size(), frame.head) == 0 &&
               text.compare(text.size() - frame.tail.size(), frame.tail.size(), frame.tail) == 0;
    });
    for (std::string& text : texts) {
        text = haveIt ? text.substr(frame.head.size(), text.size() - around) : text;
    }
    return haveIt;
}

bool AreEqual(const Texts& texts) {
    return std::all_of(texts.begin(), texts.end(),
                       [&](const std::string& text) { return text == texts.front(); });
}

/// What stands in braces; those of the text itself are doubled.
std::set<std::string> NamesIn(const Texts& texts) {
    std::set<std::string> names;
    for (const std::string& text : texts) {
        for (std::size_t at = 0; (at = text.find('{', at)) != std::string::npos;) {
            if (text.compare(at, 2, "{{") == 0) {
                at += 2;
                continue;
            }
            const std::size_t close = std::min(text.find('}', at), text.size());
            names.insert(text.substr(at + 1, close - at - 1));
            at = close;
        }
    }
    return names;
}

std::vector<Phrase> ReadForms(const Texts& texts, const Names& names) {
    std::vector<Phrase> phrases;
    phrases.reserve(texts.size());
    for (const std::string& text : texts) {
        phrases.push_back(ReadFlat(text, names));
    }
    return phrases;
}

}  // namespace

Exchange::Exchange(Message reference, std::optional<Message> own, FormCounts counts)
    : reference_(std::move(reference)), own_(std::move(own)), counts_(counts) {
    const std::size_t ownPlurals = own_ ? own_->plurals.size() : 0;
    const bool isWhole = reference_.plurals.size() <= 1 && ownPlurals <= 1;
    if (own_ && !isWhole) {
        own_ = NumberedLike(*own_, reference_);
    }
    if (isWhole) {
        AddWhole();
    } else {
        AddParts();
    }
}

Names Exchange::NamesOf() const {
    Names names;
    for (const Message* const message : {&reference_, own_ ? &*own_ : nullptr}) {
        if (message == nullptr) {
            continue;
        }
        names.Add(message->phrase);
        for (const auto& numbered : message->plurals) {
            names.AddParameter(numbered.second.parameter);
            for (const Phrase& form : numbered.second.forms) {
                names.Add(form);
            }
        }
    }
    return names;
}

void Exchange::AddWhole() {
    Unit unit;
    unit.isPlural = reference_.IsPlural() || (own_ && own_->IsPlural());
    unit.reference = WholeTexts(reference_);
    if (unit.isPlural) {
        const std::size_t one = std::min(counts_.referenceOne, unit.reference.size() - 1);
        unit.reference = {unit.reference[one], unit.reference.back()};
    }
    if (own_) {
        unit.own = WholeTexts(*own_);
        if (own_->IsPlural()) {
            unit.own = Filled(std::move(unit.own));
        } else if (unit.isPlural) {
            unit.own.resize(counts_.own, unit.own.front());
        }
    }
    units_.push_back(std::move(unit));
}

void Exchange::AddParts() {
    const std::string whole = Flat(reference_.phrase);
    units_.push_back({"", false, {whole}, {}});
    if (own_) {
        units_.front().own = {Flat(own_->phrase)};
    }
    const std::size_t most = reference_.plurals.size() + (own_ ? own_->plurals.size() : 0);
    for (std::size_t count = 1; count <= most; ++count) {
        Unit unit{std::to_string(count), true, {whole, whole}, {}};
        const auto reference = reference_.plurals.find(unit.number);
        const bool isInReference = reference != reference_.plurals.end();
        if (isInReference) {
            const Texts forms = Flat(reference->second.forms);
            unit.reference = {forms[std::min(counts_.referenceOne, forms.size() - 1)],
                              forms.back()};
        }
        const bool isInOwn = own_ && own_->plurals.count(unit.number) != 0;
        if (isInOwn) {
            unit.own = Filled(Flat(own_->plurals.at(unit.number).forms));
        }
        if (isInReference || isInOwn) {
            units_.push_back(std::move(unit));
        }
    }
}

/// Too few forms are filled up with the last one, and too many cut off.
std::vector<std::string> Exchange::Filled(std::vector<std::string> forms) {
    hasOtherFormCount_ = hasOtherFormCount_ || forms.size() != counts_.own;
    const std::string last = forms.back();
    forms.resize(counts_.own, last);
    return forms;
}

const Plural& Exchange::PluralOf(const std::string& number) const {
    const bool isOwn = own_ && own_->plurals.count(number) != 0;
    return isOwn ? own_->plurals.at(number) : reference_.plurals.at(number);
}

/// A name that the translation does without already may stay away, and one that it has may stay.
void Exchange::RequireNames(const Unit& unit, const std::vector<std::string>& translation) const {
    const std::set<std::string> wanted = NamesIn(unit.reference);
    const std::set<std::string> before = NamesIn(unit.own);
    const std::set<std::string> now = NamesIn(translation);
    for (const std::string& name : wanted) {
        if (now.count(name) == 0 && (unit.own.empty() || before.count(name) != 0)) {
            throw Inexpressible("'{" + name + "}' of the reference is missing");
        }
    }
    if (unit.isPlural) {
        RequireNamesInForms(unit, translation);
    }
    std::set<std::string> allowed = wanted;
    allowed.insert(before.begin(), before.end());
    for (const Message* const message : {&reference_, own_ ? &*own_ : nullptr}) {
        if (message != nullptr) {
            for (const auto& numbered : message->plurals) {
                allowed.insert(numbered.second.parameter);
            }
        }
    }
    for (const std::string& name : now) {
        if (allowed.count(name) == 0) {
            throw UnknownName("'{" + name + "}' is not in the reference");
        }
    }
}

/// What all forms of the reference name. A form that one number alone has need not tell it.
void Exchange::RequireNamesInForms(const Unit& unit, const Texts& forms) const {
    std::set<std::string> wanted = NamesIn(unit.reference);
    for (const std::string& text : unit.reference) {
        const std::set<std::string> names = NamesIn({text});
        for (auto name = wanted.begin(); name != wanted.end();) {
            name = names.count(*name) != 0 ? std::next(name) : wanted.erase(name);
        }
    }
    const std::string& number = ParameterOf(unit);
    for (std::size_t form = 0; form < forms.size(); ++form) {
        const bool mayLackNumber =
            form >= counts_.severalNumbers.size() || !counts_.severalNumbers[form];
        const std::set<std::string> now = NamesIn({forms[form]});
        const std::set<std::string> before =
            form < unit.own.size() ? NamesIn({unit.own[form]}) : wanted;
        for (const std::string& name : wanted) {
            const bool isNumber =
                name == number || name.compare(0, number.size() + 1, number + '.') == 0;
            if (now.count(name) == 0 && before.count(name) != 0 && !(isNumber && mayLackNumber)) {
                throw Inexpressible("'{" + name + "}' of the reference is missing in the form '" +
                                    forms[form] + '\'');
            }
        }
    }
}

/// The one that chooses the form.
const std::string& Exchange::ParameterOf(const Unit& unit) const {
    if (!unit.number.empty()) {
        return PluralOf(unit.number).parameter;
    }
    return OnlyPlural(own_ && own_->IsPlural() ? *own_ : reference_).parameter;
}

/// One text with a plural form around all of it, but for what stood around it before.
Message Exchange::WithForms(const Texts& forms, const Names& names) const {
    const bool wasPlural = own_ ? own_->IsPlural() : reference_.IsPlural();
    if (!wasPlural && AreEqual(forms)) {
        return {ReadFlat(forms.front(), names), {}};
    }
    Texts texts = forms;
    Frame frame;
    if (own_ && own_->IsPlural() && RemoveFrame(texts, FrameOf(*own_))) {
        frame = FrameOf(*own_);
    }
    Message message;
    Append(message.phrase, ReadFlat(frame.head, names));
    Append(message.phrase, Part{Part::Kind::Plural, "1"});
    Append(message.phrase, ReadFlat(frame.tail, names));
    message.plurals["1"] = {ParameterOf(units_.front()), ReadForms(texts, names)};
    return message;
}

std::string Exchange::ValueWith(const std::vector<std::vector<std::string>>& translations) const {
    const Names names = NamesOf();
    Message message;
    for (std::size_t i = 0; i < units_.size(); ++i) {
        const Unit& unit = units_[i];
        const Texts& texts = translations[i];
        if (texts != unit.own) {
            RequireNames(unit, texts);
        }
        if (!unit.number.empty()) {
            if (!texts.empty()) {
                message.plurals[unit.number] = {PluralOf(unit.number).parameter,
                                                ReadForms(texts, names)};
            }
        } else if (unit.isPlural) {
            message = WithForms(texts, names);
        } else {
            message.phrase = ReadFlat(texts.front(), names);
        }
    }
    return ValueOf(message);
}

}  // namespace lm_exchange
