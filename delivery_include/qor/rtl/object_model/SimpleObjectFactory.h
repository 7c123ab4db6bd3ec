// Creation policy of objects that need nothing from the host: the runtime's ordinary memory.
#pragma once

#include "qor/result_codes.h"

namespace qor {

class SimpleObjectFactory {
public:
    /// @param out  receives the object with one reference.
    /// @throws what the constructor throws; std::bad_alloc.
    template <class Object>
    static result_t Create(Object** out) {
        *out = new Object();
        return rcOk;
    }

    template <class Object>
    static void Destroy(Object* object) {
        delete object;
    }
};

}  // namespace qor
