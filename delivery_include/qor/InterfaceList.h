// Answers interface queries from the list of a class's interfaces.
#pragma once

#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// The interfaces of a class in the order of its bases. The first one also answers identifier 0, so
/// that an interface without an identifier of its own is reached that way.
template <class First, class... Others>
struct InterfaceList {
    /// `IObject::QueryInterface` for an object that derives from all listed interfaces.
    template <class Object>
    static result_t Query(Object& object, std::uint32_t interfaceId, void** out) {
        if (out == nullptr) {
            return rcInvalidArgument;
        }
        void* found = nullptr;
        if (interfaceId == IObject::InterfaceId || interfaceId == First::InterfaceId) {
            found = static_cast<First*>(&object);
        } else {
            ((interfaceId == Others::InterfaceId ? found = static_cast<Others*>(&object) : found),
             ...);
        }
        *out = found;
        if (found == nullptr) {
            return rcInterfaceNotSupported;
        }
        object.AddRef();
        return rcOk;
    }
};

}  // namespace qor
