// Answers the module from the request that the calling thread is making.
#pragma once

#include <algorithm>
#include <string_view>
#include <utility>

#include "localization_manager/IParamResolver.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/detail/Call.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host::detail {

/// The module asks for parameters on the thread that asked for the text, so that each thread has its own
/// request, and one inside another for the time that it takes. The thread's variable is reached through
/// virtual operations only: where a program and a library of it both hold this code, there are two, and
/// an object always means the one of its maker.
class CurrentCall : public HostObject<IParamResolver> {
public:
    /// Makes `call` the thread's request; null for none.
    /// @return the one before.
    virtual Call* Exchange(Call* call) noexcept { return std::exchange(Slot(), call); }

    /// The thread's request; null when it makes none.
    virtual Call* Get() const noexcept { return Slot(); }

    qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) noexcept override
        try {
        Call* const call = Slot();
        if (call == nullptr) {
            return qor::rcNotFound;
        }
        for (const Param& param : call->params) {
            if (Names(param, name.view())) {
                param.Write(result);
                return qor::rcOk;
            }
        }
        call->unknownParam = ToUtf8(name);
        return qor::rcNotFound;
    } catch (...) {  // only memory can run out, and no exception should cross into the module
        return qor::rcOutOfMemory;
    }

private:
    static Call*& Slot() noexcept {
        thread_local Call* call = nullptr;
        return call;
    }

    /// Names of parameters are ASCII in every text that can be read.
    static bool Names(const Param& param, std::u16string_view name) noexcept {
        const std::string_view own = param.name();
        return std::equal(
            own.begin(), own.end(), name.begin(), name.end(),
            [](char left, char16_t right) { return static_cast<unsigned char>(left) == right; });
    }
};

}  // namespace localization_manager::host::detail
