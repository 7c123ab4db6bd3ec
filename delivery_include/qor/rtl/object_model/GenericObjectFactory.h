// The class factory behind `qorGetObjectFactory`.
#pragma once

#include <cstdint>

#include "qor/IObjectFactory.h"
#include "qor/InterfaceList.h"
#include "qor/objptr_t.h"
#include "qor/result_codes.h"
#include "qor/rtl/object_model/Object.h"

namespace qor {

/// Makes objects of class `T`, instantiated as `ObjectType`.
template <class T, class ObjectType>
class GenericObjectFactory : public IObjectFactory {
public:
    using Interfaces = InterfaceList<IObjectFactory>;

    result_t CreateObject(IServiceLocator* serviceLocator, std::uint32_t interfaceId,
                          void** out) override {
        ObjectType* object = nullptr;
        const result_t code = ObjectType::CreateInstance(serviceLocator, &object);
        if (object == nullptr) {
            return ResultOfCreation(code, object);
        }
        const auto local = objptr_t<ObjectType>::Adopt(object);
        return local->QueryInterface(interfaceId, out);
    }

protected:
    ~GenericObjectFactory() = default;
};

}  // namespace qor
