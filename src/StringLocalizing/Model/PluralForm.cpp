// The special members need the complete type of the forms, which contains this one.
#include "PluralForm.h"

#include <utility>

#include "Value.h"

namespace LocalizationManager::StringLocalizing::Model {

PluralForm::PluralForm() = default;

PluralForm::PluralForm(const PluralForm& other) = default;

PluralForm::PluralForm(PluralForm&& other) noexcept : paramName(std::move(other.paramName)) {
    forms.swap(other.forms);
}

PluralForm& PluralForm::operator=(const PluralForm& other) {
    return *this = PluralForm(other);
}

PluralForm& PluralForm::operator=(PluralForm&& other) noexcept {
    paramName = std::move(other.paramName);
    forms.swap(other.forms);
    return *this;
}

PluralForm::~PluralForm() = default;

}  // namespace LocalizationManager::StringLocalizing::Model
