// Making the component objects that the module needs itself.
#pragma once

#include <string_view>

#include "qor/IServiceLocator.h"
#include "qor/objptr_t.h"
#include "qor/rtl/contracts/ContractLocation.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"

namespace localization_manager {

/// An object of class `T`, made as a checked call.
/// @param text      what could not be done.
/// @param location  place of the call.
/// @throws QorCallFailedException.
template <class T>
qor::objptr_t<qor::ComponentObject<T>> CreateComponent(
    qor::IServiceLocator* locator, std::string_view text,
    const code_contracts::ContractLocation& location) {
    qor::objptr_t<qor::ComponentObject<T>> created;
    const qor::result_t code = qor::ComponentObject<T>::CreateInstance(locator, created.Ref());
    ::LocalizationManager::CheckCall(qor::ResultOfCreation(code, created.get()), text, location);
    return created;
}

}  // namespace localization_manager
