// Converts between names of cultures and `Culture` records.
#pragma once

#include <cstdint>

#include "localization_manager/Culture.h"
#include "qor/IObject.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// Implemented by the module (`class_id::CultureConverter`); any threads may call. Both operations
/// let `std::bad_alloc` out (Windows: answer `rcOutOfMemory`); out arguments are then unchanged.
class ICultureConverter : public qor::IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x465EBE3F;

    /// @param name     an ISO name ("en", "zh-Hans") or a shorthand ("anz", "br", "hch", "la",
    ///                 "sch", "sea", "tch") in any letter case, optionally followed by "-" and a
    ///                 region, and that by "-" and a variant, which keep their letter case and are
    ///                 not examined, not even for what would lead out of the tree (see `Culture`).
    /// @param culture  receives the culture, whole or not at all; its strings keep their allocator.
    /// @return `rcOk`, or `rcUnspecifiedError` for a name that is not known.
    virtual qor::result_t GetCultureByIsoName(const qor::string8_t& name, Culture& culture) = 0;

    /// @param language  a value of `Language`; any other fails.
    /// @param isoName   receives the ISO name; keeps its allocator.
    /// @return `rcOk`, or `rcUnspecifiedError`, with a record in the trace.
    virtual qor::result_t GetLanguageIsoName(Language language, qor::string8_t& isoName) = 0;

protected:
    ~ICultureConverter() = default;
};

}  // namespace localization_manager
