// The special members need the complete type of the forms, which contains this one.
#include "PluralForm.h"

#include "Value.h"

namespace LocalizationManager::StringLocalizing::Model {

PluralForm::PluralForm() = default;
PluralForm::PluralForm(const PluralForm& other) = default;
PluralForm::PluralForm(PluralForm&& other) noexcept = default;
PluralForm& PluralForm::operator=(const PluralForm& other) = default;
PluralForm& PluralForm::operator=(PluralForm&& other) noexcept = default;
PluralForm::~PluralForm() = default;

}  // namespace LocalizationManager::StringLocalizing::Model
