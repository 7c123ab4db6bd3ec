// How a component finds the services of its host.
#pragma once

#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// Implemented by the host, which hands it to every factory call. It must answer at least
/// `IAllocator` and `ITracer`, from any thread that creates objects. The allocator has to be the
/// same one at every call: an object's memory comes from what one call answers, and goes back to
/// what another did.
class IServiceLocator : public IObject {
public:
    /// @param interfaceId  identifier of the service's interface.
    /// @param reserved     always 0.
    /// @param out          receives the service with one reference that the caller owns; left alone
    ///                     on failure.
    /// @return a non-negative code on success. A failure code travels unchanged to whoever asked
    ///         for the object that needed the service.
    virtual result_t GetService(std::uint32_t interfaceId, std::uintptr_t reserved, void** out) = 0;

protected:
    ~IServiceLocator() = default;
};

}  // namespace qor
