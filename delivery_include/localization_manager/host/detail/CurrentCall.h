// Answers the module from the request that the calling thread is making.
#pragma once

#include <algorithm>
#include <exception>
#include <new>
#include <optional>
#include <string>
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
        if (const Param* const param = Find(call->params, name.view())) {
            param->Write(result);
            if (call->conventions != nullptr && !param->IsNumber()) {
                call->conventions->Isolate(result);
            }
            return qor::rcOk;
        }
        call->paramProblem = WriteDerived(*call, name, result);
        return call->paramProblem.empty() ? qor::rcOk : qor::rcNotFound;
    } catch (...) {  // only memory can run out, and no exception should cross into the module
        return qor::rcOutOfMemory;
    }

private:
    static Call*& Slot() noexcept {
        thread_local Call* call = nullptr;
        return call;
    }

    /// Names of parameters are ASCII in every text that can be read.
    /// @return null when there is none of that name.
    static const Param* Find(const Params& params, std::u16string_view name) noexcept {
        const Param* const found =
            std::find_if(params.begin(), params.end(), [name](const Param& param) {
                const std::string_view own = param.name();
                return std::equal(own.begin(), own.end(), name.begin(), name.end(),
                                  [](char left, char16_t right) {
                                      return static_cast<unsigned char>(left) == right;
                                  });
            });
        return found != params.end() ? found : nullptr;
    }

    /// Answers a name that the call does not have, but perhaps the one that it is derived from.
    /// @return why it cannot; empty when it can.
    static std::string WriteDerived(const Call& call, const qor::string16_t& name16,
                                    qor::string16_t& result) {
        const std::string name = ToUtf8(name16);
        const std::optional<DerivedParam> derived = DerivedParam::Split(name);
        const Param* const param =
            derived ? Find(call.params, name16.view().substr(0, derived->param.size())) : nullptr;
        if (param == nullptr) {
            return "it asks for $" + name + ", the call has: " + call.params.Names();
        }
        if (call.conventions == nullptr) {
            return "it asks for $" + name + ", and TreeSettings::conventions is not set";
        }
        param->Write(result);
        try {
            call.conventions->Write(derived->format, result);
            return {};
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& error) {
            return "it asks for $" + name + ": " + error.what();
        }
    }
};

}  // namespace localization_manager::host::detail
