// Tells a host in UTF-8 how a text came about.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "localization_manager/IResolveListener.h"
#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host {

class ResolveListener : public HostObject<IResolveListener> {
public:
    /// `ResolveKind` says what the texts are.
    using Callback = std::function<void(ResolveKind kind, const std::string& source,
                                        const std::string& name, const std::string& value)>;

    explicit ResolveListener(Callback callback) : callback_(std::move(callback)) {}

    qor::result_t OnResolved(ResolveKind kind, const qor::string16_t& source,
                             const qor::string16_t& name, const qor::string16_t& value) override {
        return AtCallback([&] {
            callback_(kind, ToUtf8(source), ToUtf8(name), ToUtf8(value));
            return qor::rcOk;
        });
    }

private:
    const Callback callback_;
};

}  // namespace localization_manager::host
