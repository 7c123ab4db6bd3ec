// Reference counting and interface queries for the objects that a host gives to the module.
#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

#include "qor/InterfaceList.h"
#include "qor/objptr_t.h"

namespace localization_manager::host {

/// Base of a class that implements `Interfaces`. An object is made with `Make`, and destroyed by
/// whoever gives back its last reference, host or module; its memory is always the host's.
template <class... Interfaces>
class HostObject : public Interfaces... {
public:
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    std::uint32_t AddRef() override { return ++references_; }

    std::uint32_t Release() override {
        const std::uint32_t left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    qor::result_t QueryInterface(std::uint32_t interfaceId, void** out) override {
        return qor::InterfaceList<Interfaces...>::Query(*this, interfaceId, out);
    }

protected:
    HostObject() = default;
    virtual ~HostObject() = default;

private:
    std::atomic<std::uint32_t> references_{1};
};

/// A new host object of class `Object`.
template <class Object, class... Arguments>
qor::objptr_t<Object> Make(Arguments&&... arguments) {
    return qor::objptr_t<Object>::Adopt(new Object(std::forward<Arguments>(arguments)...));
}

}  // namespace localization_manager::host
