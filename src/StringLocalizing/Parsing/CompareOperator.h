// The comparison operators of plural rule files.
#pragma once

namespace LocalizationManager::StringLocalizing::Parsing {

enum class CompareOperator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

}  // namespace LocalizationManager::StringLocalizing::Parsing
