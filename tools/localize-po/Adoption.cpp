#include "Adoption.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "edit/format.h"
#include "exchange/Message.h"
#include "printf_phrase.h"
#include "source/Document.h"
#include "source/untranslated.h"

namespace localize_po {

using lm_exchange::Part;
using lm_exchange::Phrase;

namespace {

/// The parameter that chooses the form: the number that programs give gettext beside the texts.
constexpr const char* kNumber = "n";

/// Comments that tools would take for requests are left out.
std::string CommentLines(const std::vector<std::string>& comments) {
    std::string lines;
    for (std::string comment : comments) {
        std::replace(comment.begin(), comment.end(), '\r', ' ');
        const std::size_t begin = std::min(comment.find_first_not_of("; \t"), comment.size());
        if (begin != comment.size() && comment.compare(begin, 9, "localize:") != 0) {
            lines += "; " + comment.substr(begin) + '\n';
        }
    }
    return lines;
}

std::string InStyle(const std::string& text) {
    return lm_edit::Format(lm_source::Document(text));
}

}  // namespace

Adoption::Identity Adoption::IdentityOf(const CatalogEntry& entry) {
    // No context is another one than the empty one.
    return {entry.context ? '|' + *entry.context : std::string(), entry.id};
}

void Adoption::Add(const Catalog& catalog) {
    for (const CatalogEntry& entry : catalog.Entries()) {
        if (entry.isObsolete) {
            continue;
        }
        const auto [known, isNew] = known_.emplace(IdentityOf(entry), messages_.size());
        if (isNew) {
            std::string key = keys_.Make(entry.context.value_or(""), entry.id);
            messages_.push_back({entry, std::move(key)});
            continue;
        }
        CatalogEntry& before = messages_[known->second].entry;
        before.isPrintf = before.isPrintf || entry.isPrintf;
        before.pluralId = before.pluralId ? before.pluralId : entry.pluralId;
    }
}

Phrase Adoption::PhraseOf(const Message& message, const std::string& text) const {
    Phrase phrase;
    if (!message.entry.isPrintf) {
        Append(phrase, Part{Part::Kind::Text, text});
        return phrase;
    }
    for (Part part : PhraseOfPrintf(text)) {
        if (part.kind == Part::Kind::Parameter) {
            part.text = names_.Of(message.key, part.text);
        }
        Append(phrase, part);
    }
    return phrase;
}

/// @param texts  all forms, or one text.
std::string Adoption::LineOf(const Message& message, const std::vector<std::string>& texts) const {
    lm_exchange::Message value;
    if (!message.entry.pluralId) {
        value.phrase = PhraseOf(message, texts.front());
    } else {
        value.phrase = {Part{Part::Kind::Plural, "1"}};
        lm_exchange::Plural& plural = value.plurals["1"];
        plural.parameter = names_.Of(message.key, kNumber);
        for (const std::string& text : texts) {
            plural.forms.push_back(PhraseOf(message, text));
        }
    }
    return message.key + " = " + ValueOf(value) + '\n';
}

std::vector<std::string> Adoption::OwnTexts(const Message& message, std::size_t count,
                                            std::size_t one) const {
    std::vector<std::string> texts(count, message.entry.pluralId.value_or(message.entry.id));
    texts[one] = message.entry.id;
    return texts;
}

Adoption::File Adoption::Reference(const lm_plural::PluralRule& rule) const {
    std::string text;
    for (const Message& message : messages_) {
        text += CommentLines(message.entry.comments) +
                LineOf(message, OwnTexts(message, rule.FormCount(), rule.FormOf(1).value_or(0)));
    }
    return {InStyle(text), messages_.size()};
}

Adoption::File Adoption::Translation(const Catalog& catalog, const std::vector<std::size_t>& forms,
                                     std::size_t one) const {
    std::map<std::size_t, const CatalogEntry*> translations;
    for (const CatalogEntry& entry : catalog.Entries()) {
        // As gettext does: the first form tells whether there is a translation.
        if (!entry.isObsolete && !entry.isFuzzy && !entry.translations.front().empty()) {
            translations.emplace(known_.at(IdentityOf(entry)), &entry);
        }
    }
    File file;
    std::string text;
    for (std::size_t number = 0; number < messages_.size(); ++number) {
        const Message& message = messages_[number];
        const auto found = translations.find(number);
        if (found == translations.end()) {
            text += std::string(lm_source::kUntranslatedComment) + '\n' +
                    LineOf(message, OwnTexts(message, forms.size(), one));
            continue;
        }
        ++file.translated;
        const std::vector<std::string>& brought = found->second->translations;
        std::vector<std::string> texts = brought;
        if (found->second->pluralId) {
            texts.clear();
            for (const std::size_t form : forms) {
                if (form >= brought.size()) {
                    throw std::runtime_error("'" + message.entry.id + "' has " +
                                             std::to_string(brought.size()) +
                                             " forms, fewer than the header says");
                }
                texts.push_back(brought[form]);
            }
        } else if (message.entry.pluralId) {
            texts.assign(forms.size(), brought.front());
        }
        text += LineOf(message, texts);
    }
    file.bytes = InStyle(text);
    return file;
}

std::vector<std::size_t> FormsFor(const lm_plural::PluralRule& rule,
                                  const lm_plural::PluralForms& forms) {
    std::vector<std::optional<std::size_t>> found(rule.FormCount());
    for (const std::uint64_t number : lm_plural::NumbersToTry(rule)) {
        const auto form = rule.FormOf(number);
        const auto value = forms.expression.ValueFor(number);
        if (!form || !value || *value >= forms.count || found[*form].value_or(*value) != *value) {
            return {};
        }
        found[*form] = static_cast<std::size_t>(*value);
    }
    std::vector<std::size_t> map;
    map.reserve(found.size());
    for (const auto& form : found) {
        map.push_back(form.value_or(forms.count - 1));
    }
    return map;
}

}  // namespace localize_po
