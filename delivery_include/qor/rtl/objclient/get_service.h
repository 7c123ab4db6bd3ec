// Looking up services of the host.
#pragma once

#include "qor/IServiceLocator.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"
#include "qor/result_codes.h"
#include "qor/rtl/error_handling/GetInterfaceException.h"

namespace qor {

/// Asks the locator for the service `Interface`.
/// @param service  receives the service; null on failure.
/// @return the locator's code.
template <class Interface>
result_t GetService(IServiceLocator& locator, objptr_t<Interface>& service) {
    void* found = nullptr;
    const result_t code = locator.GetService(Interface::InterfaceId, 0, &found);
    service = Failed(code) ? objptr_t<Interface>()
                           : objptr_t<Interface>::Adopt(static_cast<Interface*>(found));
    return code;
}

/// The exception for a lookup of the service `Interface` that answered `code`.
template <class Interface>
GetInterfaceException MissingService(result_t code) {
    // What the exception's text prints as its place.
    constexpr const char* kSourceFile = "qor/rtl/objclient";
    constexpr std::int32_t kSourceLine = 113;
    return GetInterfaceException(Interface::InterfaceId, code, kSourceFile, kSourceLine);
}

/// `GetService` for callers that cannot do without the service.
/// @throws GetInterfaceException with the code of a failed lookup.
template <class Interface>
objptr_t<Interface> RequireService(IServiceLocator& locator) {
    objptr_t<Interface> service;
    const result_t code = GetService(locator, service);
    if (Failed(code)) {
        throw MissingService<Interface>(code);
    }
    return service;
}

/// The host's tracer, for places that report a failure and can do without.
/// @param locator  may be null.
inline objptr_t<ITracer> FindTracer(IServiceLocator* locator) noexcept {
    objptr_t<ITracer> tracer;
    try {
        if (locator != nullptr) {
            GetService(*locator, tracer);
        }
    } catch (...) {  // then there is none
    }
    return tracer;
}

}  // namespace qor
