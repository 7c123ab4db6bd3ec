// Converts between names of cultures and culture records.
#pragma once

#include "CultureTable.h"
#include "localization_manager/ICultureConverter.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace localization_manager {

/// Immutable after construction.
class CultureConverterImpl : public ICultureConverter, public qor::ObjectRoot {
public:
    using Interfaces = qor::InterfaceList<ICultureConverter>;

    explicit CultureConverterImpl(qor::IServiceLocator& serviceLocator);

    qor::result_t GetCultureByIsoName(const qor::string8_t& name, Culture& culture) override;
    qor::result_t GetLanguageIsoName(Language language, qor::string8_t& isoName) override;

protected:
    ~CultureConverterImpl() = default;

private:
    CultureTable cultures_;
};

}  // namespace localization_manager
