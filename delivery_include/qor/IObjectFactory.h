// Creates objects of one exported class.
#pragma once

#include <cstdint>

#include "qor/IObject.h"
#include "qor/IServiceLocator.h"

namespace qor {

/// Implemented by the module; obtained from `qorGetObjectFactory`. May be used from any thread.
class IObjectFactory : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x80077A33;

    /// @param serviceLocator  the host's services; the new object keeps a reference of its own.
    /// @param interfaceId     interface of the new object that is wanted; 0 for its first one.
    /// @param out             receives that interface with one reference that the caller owns. Null
    ///                        when the class does not have the interface; untouched when the object
    ///                        could not be made.
    /// @return `rcOk`; `rcInterfaceNotSupported`; the locator's own code when it gives no allocator
    ///         or tracer; `rcOutOfMemory`; `rcInvalidArgument` for a null locator, and for a null
    ///         `out` once the object could be made; `rcUnexpected` when the locator succeeds, or
    ///         throws a success code, without the object coming about.
    virtual result_t CreateObject(IServiceLocator* serviceLocator, std::uint32_t interfaceId,
                                  void** out) = 0;

protected:
    ~IObjectFactory() = default;
};

}  // namespace qor
