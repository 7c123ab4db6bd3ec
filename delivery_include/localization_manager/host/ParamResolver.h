// Asks a function of the host for the texts of parameters.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "localization_manager/IParamResolver.h"
#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host {

/// `ParamMap` serves hosts that know all values beforehand.
class ParamResolver : public HostObject<IParamResolver> {
public:
    /// Name and text are UTF-8; no text means that there is no such parameter. Called from
    /// whichever thread asks for a localised text. May throw a standard exception, whose words then
    /// stand in the report, or the message of its code, see `AtCallback`.
    using Callback = std::function<std::optional<std::string>(const std::string& name)>;

    explicit ParamResolver(Callback callback) : callback_(std::move(callback)) {}

    qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) override {
        return AtCallback([&] {
            const std::optional<std::string> text = callback_(ToUtf8(name));
            if (!text) {
                return qor::rcNotFound;
            }
            result = std::u16string_view(ToUtf16(*text));
            return qor::rcOk;
        });
    }

private:
    const Callback callback_;
};

}  // namespace localization_manager::host
