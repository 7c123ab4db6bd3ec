// The loaded module and the objects that it makes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "localization_manager/ICultureConverter.h"
#include "localization_manager/ILocalizationManager.h"
#include "localization_manager/host/GuardedManager.h"
#include "localization_manager/host/ResultError.h"
#include "localization_manager/host/default_module_path.h"
#include "localization_manager/host/names.h"
#include "localization_manager/module.h"
#include "qor/IObjectFactory.h"
#include "qor/IServiceLocator.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"
#include "qor/platform/shared_library.h"

namespace localization_manager::host {

/// Loads the module, and unloads it again when it goes. Declare it before the objects made with it,
/// so that they go first: while one of them lives, the module's code must stay, and a `Module` that
/// goes all the same leaves the code loaded until the process ends. No other thread may be inside
/// the module at that moment. The operations may be called from several threads at once.
class Module {
public:
    /// @param path  UTF-8.
    /// @throws std::runtime_error when it cannot be loaded or is something else.
    explicit Module(const std::string& path = DefaultModulePath())
        : library_(qor::platform::OpenSharedLibrary(path)),
          getObjectFactory_(Find<GetObjectFactoryFunction>(kGetObjectFactoryName)),
          canUnloadModule_(Find<CanUnloadModuleFunction>(kCanUnloadModuleName)) {}

    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    ~Module() {
        if (!CanUnload()) {
            static_cast<void>(library_.release());
        }
    }

    /// Whether no object of the module is alive.
    bool CanUnload() const { return canUnloadModule_() == qor::rcOk; }

    /// @param services  the new object, and whatever it makes in turn, keeps a reference.
    /// @param names     whether scopes, cultures and keys of files that lead out of the tree are
    ///                  refused: with `rcProhibited`, and a record for the tracer of `services`.
    /// @throws ResultError with the code of the module or of `services`.
    qor::objptr_t<ILocalizationManager> CreateManager(qor::IServiceLocator& services,
                                                      Names names = Names::InsideTheTree) const {
        auto manager = Create<ILocalizationManager>(class_id::LocalizationManager, services);
        if (names == Names::Any) {
            return manager;
        }
        void* tracer = nullptr;
        Check(services.GetService(qor::ITracer::InterfaceId, 0, &tracer), "cannot get the tracer");
        return Make<GuardedManager>(
            std::move(manager),
            Refusal(qor::objptr_t<qor::ITracer>::Adopt(static_cast<qor::ITracer*>(tracer))));
    }

    /// As `CreateManager`; names of cultures are not examined.
    qor::objptr_t<ICultureConverter> CreateCultureConverter(qor::IServiceLocator& services) const {
        return Create<ICultureConverter>(class_id::CultureConverter, services);
    }

    /// An object of any exported class, by any of its interfaces, as the module makes it: a manager
    /// made here refuses no names. Else as `CreateManager`.
    template <class Interface>
    qor::objptr_t<Interface> Create(std::uint32_t classId, qor::IServiceLocator& services) const {
        void* out = nullptr;
        Check(getObjectFactory_(&services, classId, &out), "cannot get an object factory");
        const auto factory =
            qor::objptr_t<qor::IObjectFactory>::Adopt(static_cast<qor::IObjectFactory*>(out));
        void* object = nullptr;
        Check(factory->CreateObject(&services, Interface::InterfaceId, &object),
              "cannot create an object");
        return qor::objptr_t<Interface>::Adopt(static_cast<Interface*>(object));
    }

private:
    struct Close {
        void operator()(void* handle) const noexcept { qor::platform::CloseSharedLibrary(handle); }
    };

    template <class Function>
    Function Find(const char* name) const {
        return reinterpret_cast<Function>(qor::platform::FindInSharedLibrary(library_.get(), name));
    }

    std::unique_ptr<void, Close> library_;
    GetObjectFactoryFunction getObjectFactory_;
    CanUnloadModuleFunction canUnloadModule_;
};

}  // namespace localization_manager::host
