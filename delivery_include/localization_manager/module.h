// The two functions that the module exports, and the classes it makes.
#pragma once

#include <cstdint>

#include "qor/IObjectFactory.h"
#include "qor/IServiceLocator.h"
#include "qor/result_codes.h"

namespace localization_manager {

/// Classes that `qorGetObjectFactory` knows.
namespace class_id {
inline constexpr std::uint32_t LocalizationManager = 0x70B22AA2;
inline constexpr std::uint32_t CultureConverter = 0xBCE7112A;
}  // namespace class_id

/// `qorGetObjectFactory`: any thread may call it.
/// @param serviceLocator  serves to trace a failure only; may be null.
/// @param classId         a `class_id`.
/// @param factory         receives a `qor::IObjectFactory` with one reference that the caller owns;
///                        null for an unknown class; untouched when memory runs out.
/// @return `rcOk`, `rcNotImplemented` for an unknown class, `rcOutOfMemory`, `rcInvalidArgument`
///         for a null `factory`.
using GetObjectFactoryFunction = qor::result_t (*)(qor::IServiceLocator* serviceLocator,
                                                   std::uint32_t classId, void** factory);
inline constexpr const char* kGetObjectFactoryName = "qorGetObjectFactory";

/// `qorCanUnloadModule`: `rcOk` when no object and no factory of the module is alive, `rcFalse`
/// while one is. Any thread may call it.
using CanUnloadModuleFunction = qor::result_t (*)();
inline constexpr const char* kCanUnloadModuleName = "qorCanUnloadModule";

}  // namespace localization_manager
