// Which contract, and where it stands.
#pragma once

#include <cstdint>

namespace code_contracts {

/// All texts are static.
struct ContractLocation {
    const char* argument;  // name of the checked argument, or text of the checked call
    const char* function;  // signature of the enclosing function as the compiler spells it
    const char* file;
    std::int32_t line;
};

}  // namespace code_contracts
