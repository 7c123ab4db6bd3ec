// Gives the texts of external parameters.
#pragma once

#include "qor/IObject.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// Implemented by the host, which passes it to the manager's creators. The localizer keeps a
/// reference, and calls from whichever thread asks for a text, several at once if the host does.
class IParamResolver : public qor::IObject {
public:
    /// @param name    the parameter's name as the text writes it after "$", letter case kept.
    /// @param result  receives the text; empty when called. For a plural form it must be a decimal
    ///                integer of 64 bits.
    /// @return a failure code makes the request for the text fail, with the parameter's name and
    ///         the code's message in the report.
    /// @throws std::exception makes it fail as well; the report has what that says, and the
    ///         parameter's name only if it is part of that. On Windows nothing may be thrown.
    virtual qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) = 0;

protected:
    ~IParamResolver() = default;
};

}  // namespace localization_manager
