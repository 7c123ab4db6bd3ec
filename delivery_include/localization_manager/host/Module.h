// The loaded module and the objects that it makes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "localization_manager/ICultureConverter.h"
#include "localization_manager/ILocalizationManager.h"
#include "localization_manager/host/ResultError.h"
#include "localization_manager/module.h"
#include "qor/IObjectFactory.h"
#include "qor/IServiceLocator.h"
#include "qor/objptr_t.h"
#include "qor/platform/shared_library.h"

namespace localization_manager::host {

/// Loads the module, and unloads it again when it goes. Declare it before the objects made with it,
/// so that they go first: while one of them lives, the module's code must stay, and a `Module` that
/// goes all the same leaves the code loaded until the process ends. No other thread may be inside
/// the module at that moment. The operations may be called from several threads at once.
class Module {
public:
    /// @param path  UTF-8; the bare file name, which is the default, is looked for where the
    ///              program's run path points.
    /// @throws std::runtime_error when it cannot be loaded or is something else.
    explicit Module(const std::string& path = FileName())
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

    /// The module's file name on this platform.
    static std::string FileName() {
        return std::string(qor::platform::kSharedLibraryPrefix) + "localization_manager" +
               qor::platform::kSharedLibrarySuffix;
    }

    /// Whether no object of the module is alive.
    bool CanUnload() const { return canUnloadModule_() == qor::rcOk; }

    /// @param services  the new object, and whatever it makes in turn, keeps a reference.
    /// @throws ResultError with the code of the module or of `services`.
    qor::objptr_t<ILocalizationManager> CreateManager(qor::IServiceLocator& services) const {
        return Create<ILocalizationManager>(class_id::LocalizationManager, services);
    }

    /// As `CreateManager`.
    qor::objptr_t<ICultureConverter> CreateCultureConverter(qor::IServiceLocator& services) const {
        return Create<ICultureConverter>(class_id::CultureConverter, services);
    }

    /// An object of any exported class, by any of its interfaces; else as `CreateManager`.
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
