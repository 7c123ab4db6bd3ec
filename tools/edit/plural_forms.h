// Texts with as many plural forms as another language has.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "source/Document.h"

namespace lm_edit {

/// A plural form with another number of forms: too few are filled up with the last one, which serves
/// most numbers, and of too many the last one is kept. So are those inside its forms.
/// @param pluralForm  of an entry without mistakes.
std::string WithForms(const lm_source::Document& document, const lm_source::Operand& pluralForm,
                      std::size_t count);

/// The same for an entry: in the one style, with its line break.
std::string EntryWithForms(const lm_source::Document& document, const lm_source::Entry& entry,
                           std::size_t count, std::string_view lineBreak);

}  // namespace lm_edit
