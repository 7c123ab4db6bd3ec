// What every component object keeps of its host: allocator, tracer, service locator.
#pragma once

#include "qor/IAllocator.h"
#include "qor/IServiceLocator.h"
#include "qor/ITracer.h"
#include "qor/objptr_t.h"
#include "qor/rtl/objclient/get_service.h"

namespace qor {

class AllocatorProvider {
public:
    /// @throws GetInterfaceException also when the locator succeeds without giving one: the object's
    ///         memory could not be given back.
    explicit AllocatorProvider(IServiceLocator& locator)
        : allocator_(RequireService<IAllocator>(locator)) {
        if (!allocator_) {
            throw MissingService<IAllocator>(rcUnexpected);
        }
    }

    IAllocator* GetAllocator() const noexcept { return allocator_.get(); }

private:
    objptr_t<IAllocator> allocator_;
};

class TracerProvider {
public:
    explicit TracerProvider(IServiceLocator& locator) : tracer_(RequireService<ITracer>(locator)) {}

    /// Null when the locator succeeded without giving one.
    ITracer* GetTracer() const noexcept { return tracer_.get(); }

private:
    objptr_t<ITracer> tracer_;
};

class ServiceLocatorProvider {
public:
    explicit ServiceLocatorProvider(IServiceLocator& locator) : locator_(&locator) {}

    /// Without a new reference.
    IServiceLocator* GetServiceLocator() const noexcept { return locator_.get(); }

private:
    objptr_t<IServiceLocator> locator_;
};

/// Makes its providers in order and destroys them in reverse.
template <class... Providers>
class CompositeServiceStrategyHelper : public Providers... {
public:
    explicit CompositeServiceStrategyHelper(IServiceLocator& locator) : Providers(locator)... {}
};

template <class Strategy>
class ObjectRootEx : public Strategy {
public:
    using Strategy::Strategy;

    ObjectRootEx(const ObjectRootEx&) = delete;
    ObjectRootEx& operator=(const ObjectRootEx&) = delete;
};

/// The root that all component classes of this module derive from.
class ObjectRoot
    : public ObjectRootEx<CompositeServiceStrategyHelper<AllocatorProvider, TracerProvider,
                                                         ServiceLocatorProvider>> {
public:
    using ObjectRootEx::ObjectRootEx;
};

}  // namespace qor
