// The listener of hosts that bring none: forwards to the framework tracer.
#pragma once

#include "localization_manager/IErrorListener.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace localization_manager {

/// Every operation answers `rcOk`, whether the tracer takes the text or not.
class ErrorListener : public IErrorListener, public qor::ObjectRoot {
public:
    using Interfaces = qor::InterfaceList<IErrorListener>;
    using ObjectRoot::ObjectRoot;

    qor::result_t OnDebug(const qor::string8_t& text) override;
    qor::result_t OnInfo(const qor::string8_t& text) override;
    qor::result_t OnError(const qor::string8_t& text) override;

protected:
    ~ErrorListener() = default;
};

}  // namespace localization_manager
