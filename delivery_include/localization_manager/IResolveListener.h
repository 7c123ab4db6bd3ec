// Hears how a text came about.
#pragma once

#include <cstdint>

#include "qor/IObject.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// What `IResolveListener::OnResolved` tells about.
enum class ResolveKind : std::int32_t {
    Key = 0,         // source: name of the source that has the key; name: key; value: final text
    Param = 1,       // name: parameter; value: its text
    PluralForm = 2,  // name: parameter that holds the number; value: text of the chosen form
};

/// Implemented by the host, for tools that explain a text to its author. The module holds a
/// reference only while it works on the request, and calls on the requesting thread.
class IResolveListener : public qor::IObject {
public:
    /// Called in the order of resolving: what a plural form contains before the form, the key last.
    /// @param source  empty but for keys.
    /// @return not examined; a standard exception, not on Windows, makes the request fail.
    virtual qor::result_t OnResolved(ResolveKind kind, const qor::string16_t& source,
                                     const qor::string16_t& name, const qor::string16_t& value) = 0;

protected:
    ~IResolveListener() = default;
};

}  // namespace localization_manager
