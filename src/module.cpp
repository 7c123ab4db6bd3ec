// The module's two exported functions.
#include "localization_manager/module.h"

#include <boost/config.hpp>

#include "CultureConverterImpl.h"
#include "LocalizationManager.h"
#include "qor/rtl/error_handling/result_from_current_exception.h"
#include "qor/rtl/objclient/get_service.h"
#include "qor/rtl/object_model/GenericObjectFactory.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"
#include "qor/rtl/object_model/SimpleObjectFactory.h"

namespace {

namespace class_id = localization_manager::class_id;

/// Makes a factory for objects of class `T`.
template <class T>
qor::result_t CreateFactory(qor::IServiceLocator* serviceLocator, void** out) {
    using Factory = qor::Object<qor::GenericObjectFactory<T, qor::ComponentObject<T>>,
                                qor::SimpleObjectFactory>;
    Factory* factory = nullptr;
    try {
        Factory::CreateInstance(&factory);
    } catch (...) {
        return qor::ResultFromCurrentException(
            qor::FindTracer(serviceLocator).get(),
            "Exception during object construction: ", qor::trace_level::Error);
    }
    const auto local = qor::objptr_t<Factory>::Adopt(factory);
    return local->QueryInterface(qor::IObjectFactory::InterfaceId, out);
}

}  // namespace

extern "C" {

BOOST_SYMBOL_EXPORT qor::result_t qorGetObjectFactory(qor::IServiceLocator* serviceLocator,
                                                      std::uint32_t classId, void** factory) {
    if (factory == nullptr) {
        return qor::rcInvalidArgument;
    }
    switch (classId) {
        case class_id::LocalizationManager:
            return CreateFactory<localization_manager::LocalizationManager>(serviceLocator,
                                                                            factory);
        case class_id::CultureConverter:
            return CreateFactory<localization_manager::CultureConverterImpl>(serviceLocator,
                                                                             factory);
        default:
            *factory = nullptr;
            return qor::rcNotImplemented;
    }
}

BOOST_SYMBOL_EXPORT qor::result_t qorCanUnloadModule() {
    return qor::ModuleLockCount::Get() == 0 ? qor::rcOk : qor::rcFalse;
}

}  // extern "C"
