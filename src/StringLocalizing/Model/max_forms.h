// How many forms a plural form invocation may have.
#pragma once

namespace LocalizationManager::StringLocalizing::Model {

inline constexpr int kMaxForms = 6;

}  // namespace LocalizationManager::StringLocalizing::Model
