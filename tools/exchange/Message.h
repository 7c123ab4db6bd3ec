// The value of an entry, taken apart for translators.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "exchange/Phrase.h"
#include "source/Document.h"

namespace lm_exchange {

/// The forms of a plural form. Those that stand in them are numbers, as in the phrase around.
struct Plural {
    std::string parameter;
    std::vector<Phrase> forms;
};

struct Message {
    Phrase phrase;
    std::map<std::string, Plural> plurals;  // by number, from "1" on

    bool IsPlural() const noexcept { return !plurals.empty(); }
};

/// Plural forms are numbered in the order of the file.
/// @param entry  without a mistake.
Message MessageOf(const lm_source::Document& document, const lm_source::Entry& entry);

/// The same message with the numbers that another one gives plural forms of the same parameters;
/// further ones get numbers that the other does not have.
Message NumberedLike(const Message& message, const Message& other);

/// The message as the value of an entry. Forms cannot hold references: what all forms have in common
/// up to the last reference, and from the first of those behind on, is taken out of the braces.
/// @throws Inexpressible when forms hold references at different places, or a plural form in itself
///         or one that is not there.
std::string ValueOf(const Message& message);

}  // namespace lm_exchange
