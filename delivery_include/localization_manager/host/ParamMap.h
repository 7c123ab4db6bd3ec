// The texts of parameters, kept by name.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "localization_manager/IParamResolver.h"
#include "localization_manager/host/AtCallback.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host {

/// Answers the request for any other parameter with `rcNotFound`. Threads may set and resolve at once, but
/// the values are one set for all of them: a text may be given what another thread has set since. `Texts`
/// take values that belong to one call.
class ParamMap : public HostObject<IParamResolver> {
public:
    /// Sets or replaces a parameter; name and text are UTF-8.
    void Set(std::string_view name, std::string_view text) {
        const std::lock_guard<std::mutex> lock(mutex_);
        texts_[ToUtf16(name)] = ToUtf16(text);
    }

    /// A number, in the form that plural forms take.
    void Set(std::string_view name, std::int64_t number) { Set(name, std::to_string(number)); }

    qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) override {
        return AtCallback([&] {
            const std::lock_guard<std::mutex> lock(mutex_);
            const auto found = texts_.find(name.view());
            if (found == texts_.end()) {
                return qor::rcNotFound;
            }
            result = std::u16string_view(found->second);
            return qor::rcOk;
        });
    }

private:
    std::mutex mutex_;
    std::map<std::u16string, std::u16string, std::less<>> texts_;
};

}  // namespace localization_manager::host
