// One part of a value, as the parser reads it.
#pragma once

#include <boost/variant/variant.hpp>
#include <string>

#include "KeyRef.h"
#include "Param.h"
#include "PluralForm.h"

namespace LocalizationManager::StringLocalizing::Model {

/// A text as it stands, or something to put a text in place of. Its kind is an `OperandKind`.
using Operand = boost::variant<std::u16string, KeyRef, Param, PluralForm>;

void Append(Value& value, const Operand& operand);

}  // namespace LocalizationManager::StringLocalizing::Model
