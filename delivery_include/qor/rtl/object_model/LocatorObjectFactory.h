// Creation policy of component objects: memory and services come from the host.
#pragma once

#include <new>

#include "qor/BadAllocation.h"
#include "qor/IAllocator.h"
#include "qor/IServiceLocator.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"
#include "qor/result_codes.h"
#include "qor/rtl/error_handling/result_from_current_exception.h"
#include "qor/rtl/objclient/get_service.h"
#include "qor/rtl/object_model/Object.h"

namespace qor {

class LocatorObjectFactory {
public:
    /// @param locator  the host's services, passed on to the constructor of the class.
    /// @param out      receives the object with one reference; untouched on failure.
    /// @return `rcOk`; the locator's code when it has no allocator; else the code of the exception
    ///         that ended the construction, after its text was traced. That code is the host's when
    ///         the host threw one, and need not be a failure: see `ResultOfCreation`.
    template <class Object>
    static result_t Create(IServiceLocator* locator, Object** out) {
        if (locator == nullptr || out == nullptr) {
            return rcInvalidArgument;
        }
        try {
            objptr_t<IAllocator> allocator;
            const result_t code = GetService(*locator, allocator);
            if (Failed(code)) {
                return code;
            }
            if (!allocator) {
                return rcUnexpected;
            }
            *out = Construct<Object>(*allocator, *locator);
            return rcOk;
        } catch (...) {
            return ResultFromCurrentException(
                FindTracer(locator).get(),
                "Exception during object construction: ", trace_level::Error);
        }
    }

    /// The allocator outlives the object that holds it.
    template <class Object>
    static void Destroy(Object* object) {
        const objptr_t<IAllocator> allocator(object->GetAllocator());
        object->~Object();
        allocator->Free(object);
    }

private:
    template <class Object>
    static Object* Construct(IAllocator& allocator, IServiceLocator& locator) {
        void* const memory = allocator.Alloc(sizeof(Object));
        if (memory == nullptr) {
            throw BadAllocation();
        }
        try {
            return new (memory) Object(locator);
        } catch (...) {
            allocator.Free(memory);
            throw;
        }
    }
};

/// How the component classes of this module are instantiated.
template <class T>
using ComponentObject = Object<T, LocatorObjectFactory>;

}  // namespace qor
