// One part of a value.
#pragma once

#include <boost/variant/variant.hpp>
#include <string>

#include "KeyRef.h"
#include "Param.h"
#include "PluralForm.h"

namespace LocalizationManager::StringLocalizing::Model {

/// A text as it stands, or something to put a text in place of. Visitors rely on the order.
using Operand = boost::variant<std::u16string, KeyRef, Param, PluralForm>;

}  // namespace LocalizationManager::StringLocalizing::Model
