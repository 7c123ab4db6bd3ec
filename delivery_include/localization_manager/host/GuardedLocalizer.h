// A localizer that opens files of its tree only.
#pragma once

#include <string>
#include <utility>

#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Refusal.h"
#include "localization_manager/host/names.h"
#include "qor/objptr_t.h"

namespace localization_manager::host {

/// Refuses keys of files that lead out of the tree with `rcProhibited`; passes everything else on.
class GuardedLocalizer : public HostObject<ILocalizer> {
public:
    GuardedLocalizer(qor::objptr_t<ILocalizer> localizer, Refusal refusal)
        : localizer_(std::move(localizer)), refusal_(std::move(refusal)) {}

    qor::result_t GetString(const qor::string16_t& key, qor::string16_t& result) override {
        return localizer_->GetString(key, result);
    }
    qor::result_t GetStream(const qor::string16_t& key, qor::IIO** stream) override {
        return IsRefused(key) ? qor::rcProhibited : localizer_->GetStream(key, stream);
    }
    qor::result_t HasResource(const qor::string16_t& key) override {
        return IsRefused(key) ? qor::rcProhibited : localizer_->HasResource(key);
    }
    qor::result_t HasString(const qor::string16_t& key) override {
        return localizer_->HasString(key);
    }
    qor::result_t GetResolvedString(const qor::string16_t& key, qor::string16_t& result,
                                    IResolveListener* listener) override {
        return localizer_->GetResolvedString(key, result, listener);
    }
    qor::result_t GetPath(const qor::string16_t& key, qor::string16_t& path) override {
        return IsRefused(key) ? qor::rcProhibited : localizer_->GetPath(key, path);
    }

private:
    bool IsRefused(const qor::string16_t& key) const {
        const bool isRefused = LeadsOutOfTheTree(key.view());
        if (isRefused) {
            refusal_.Report("file", key.view());
        }
        return isRefused;
    }

    const qor::objptr_t<ILocalizer> localizer_;
    const Refusal refusal_;
};

}  // namespace localization_manager::host
