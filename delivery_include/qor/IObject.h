// The root of every component interface: reference counting and interface queries.
#pragma once

#include <cstdint>

#include "qor/result_codes.h"

namespace qor {

/// Interfaces are pure tables of operations without data; an object is destroyed by its last
/// `Release`, never through `delete`, so no interface has a destructor slot. The operations of this
/// interface may be called from any thread.
class IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x00000000;

    /// Takes one more reference. Returns the new reference count.
    virtual std::uint32_t AddRef() = 0;

    /// Gives one reference back; the object is destroyed with the last one. Returns the new count.
    virtual std::uint32_t Release() = 0;

    /// Asks for another interface of the same object.
    /// @param interfaceId  the interface wanted; 0 stands for the object's first interface.
    /// @param out          receives the interface pointer, with one reference that the caller owns;
    ///                     null when the interface is not supported.
    /// @return `rcOk`; `rcInterfaceNotSupported`; `rcInvalidArgument` for a null `out`.
    virtual result_t QueryInterface(std::uint32_t interfaceId, void** out) = 0;

protected:
    ~IObject() = default;
};

}  // namespace qor
