// A manager whose localizers stay inside their tree.
#pragma once

#include <utility>

#include "localization_manager/IConstruct.h"
#include "localization_manager/ILocalizationManager.h"
#include "localization_manager/host/GuardedLocalizer.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Refusal.h"
#include "localization_manager/host/names.h"
#include "localization_manager/host/text.h"
#include "qor/objptr_t.h"

namespace localization_manager::host {

/// Refuses scopes and cultures that lead out of the tree with `rcProhibited`, and so do the
/// localizers that it makes with the keys of files; passes everything else on. Memory for the guard
/// itself can run out: all creators, and refusals, also let `std::bad_alloc` out.
class GuardedManager : public HostObject<ILocalizationManager, IConstruct> {
public:
    GuardedManager(qor::objptr_t<ILocalizationManager> manager, Refusal refusal)
        : manager_(std::move(manager)), refusal_(std::move(refusal)) {}

    qor::result_t Init(const qor::string16_t& root, const qor::string16_t& alternative) override {
        return manager_->Init(root, alternative);
    }
    qor::result_t InitEx(const qor::string16_t& root, const qor::string16_t& alternative,
                         qor::platform::object_argument<IErrorListener> errorListener) override {
        return manager_->InitEx(root, alternative,
                                qor::platform::TakeArgument<IErrorListener>(errorListener));
    }
    qor::result_t Construct(const LocalizationManagerSettings* settings) override {
        return settings != nullptr ? Init(settings->root, settings->alternative)
                                   : qor::rcInvalidArgument;
    }

    qor::result_t CreateLocalizer(const qor::string16_t& scope, const Culture& culture,
                                  IParamResolver* paramResolver, ILocalizer** localizer) override {
        return Create(scope, culture, localizer, [&](ILocalizer** created) {
            return manager_->CreateLocalizer(scope, culture, paramResolver, created);
        });
    }
    qor::result_t CreateLocalizerFromBuffer(const qor::string16_t& buffer, const Culture& culture,
                                            IParamResolver* paramResolver,
                                            ILocalizer** localizer) override {
        return Create({}, culture, localizer, [&](ILocalizer** created) {
            return manager_->CreateLocalizerFromBuffer(buffer, culture, paramResolver, created);
        });
    }
    qor::result_t CreateBufferLocalizer(const qor::string16_t& scopePrefix,
                                        const qor::string16_t& buffer,
                                        const qor::string16_t& commonBuffer, const Culture& culture,
                                        IParamResolver* paramResolver,
                                        ILocalizer** localizer) override {
        return Create(scopePrefix, culture, localizer, [&](ILocalizer** created) {
            return manager_->CreateBufferLocalizer(scopePrefix, buffer, commonBuffer, culture,
                                                   paramResolver, created);
        });
    }

private:
    template <class CreateInner>
    qor::result_t Create(const qor::string16_t& scope, const Culture& culture,
                         ILocalizer** localizer, CreateInner createInner) {
        if (IsRefused(scope, culture)) {
            return qor::rcProhibited;
        }
        qor::objptr_t<ILocalizer> created;
        const qor::result_t code = createInner(localizer != nullptr ? created.Ref() : nullptr);
        if (created) {
            *localizer = Make<GuardedLocalizer>(std::move(created), refusal_).Detach();
        }
        return code;
    }

    bool IsRefused(const qor::string16_t& scope, const Culture& culture) const {
        if (LeadsOutOfTheTree(scope.view())) {
            refusal_.Report("scope", scope.view());
            return true;
        }
        if (LeadsOutOfTheTree(culture)) {
            refusal_.Report(
                "culture", ToUtf16(culture.region.view()) + u"-" + ToUtf16(culture.variant.view()));
            return true;
        }
        return false;
    }

    const qor::objptr_t<ILocalizationManager> manager_;
    const Refusal refusal_;
};

}  // namespace localization_manager::host
