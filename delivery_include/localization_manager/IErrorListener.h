// Hears in readable words why a localizer failed.
#pragma once

#include <cstdint>

#include "qor/IObject.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// Implemented by the host, which passes it to `ILocalizationManager::InitEx`, or by the module,
/// which then forwards to the host's tracer. Called from whichever thread made the failing request,
/// after all locks are left. Texts are UTF-8 without a line break at the end and belong to the
/// caller. Results are ignored, and so is what is thrown; on Windows nothing may be.
class IErrorListener : public qor::IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x3E9CBC27;

    virtual qor::result_t OnDebug(const qor::string8_t& text) = 0;
    virtual qor::result_t OnInfo(const qor::string8_t& text) = 0;

    /// Every failure of a localizer comes here. Texts begin with "localization manager error: ".
    virtual qor::result_t OnError(const qor::string8_t& text) = 0;

protected:
    ~IErrorListener() = default;
};

}  // namespace localization_manager
