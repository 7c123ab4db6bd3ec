// Initialises a manager from a settings record.
#pragma once

#include <cstdint>

#include "localization_manager/LocalizationManagerSettings.h"
#include "qor/IObject.h"

namespace localization_manager {

/// Implemented by the manager, beside `ILocalizationManager`; both share one reference count.
class IConstruct : public qor::IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0xA2C68B41;

    /// `ILocalizationManager::Init` with the directories of the record, which is not kept.
    /// @return `rcInvalidArgument` for null, else what `Init` returns.
    virtual qor::result_t Construct(const LocalizationManagerSettings* settings) = 0;

protected:
    ~IConstruct() = default;
};

}  // namespace localization_manager
