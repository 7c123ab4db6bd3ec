// A plural rule: which form a number selects.
#pragma once

#include <boost/function.hpp>
#include <cstdint>
#include <vector>

namespace LocalizationManager::StringLocalizing::Model {

/// Whether an entry of a rule holds for a number.
using PluralFormCondition = boost::function<bool(std::int64_t)>;

/// The entries of a rule; the index of the first one that holds is the index of the form.
using PluralFormRule = std::vector<PluralFormCondition>;

}  // namespace LocalizationManager::StringLocalizing::Model
