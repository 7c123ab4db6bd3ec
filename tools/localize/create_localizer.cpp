#include "create_localizer.h"

#include <iostream>

#include "UsageError.h"
#include "localization_manager/host/host.h"
#include "read_text.h"

namespace localize {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

lm::Culture CultureOf(const host::Module& module, qor::IServiceLocator& services,
                      const std::string& name) {
    lm::Culture culture;
    const auto converter = module.CreateCultureConverter(services);
    if (qor::Failed(converter->GetCultureByIsoName(qor::string8_t(name), culture))) {
        throw UsageError("unknown culture '" + name + "'");
    }
    return culture;
}

qor::objptr_t<host::ParamMap> ParamsOf(const Options& options) {
    auto params = host::Make<host::ParamMap>();
    for (const auto& [name, text] : options.params) {
        params->Set(name, text);
    }
    return params;
}

qor::string16_t TextOf(const std::string& file) {
    return file.empty() ? qor::string16_t() : host::ToString16(ReadText(file));
}

}  // namespace

qor::objptr_t<lm::ILocalizer> CreateLocalizer(const host::Module& module, const Options& options) {
    const host::Report report = host::LinesTo(std::cerr);
    const auto services = host::Make<host::ServiceLocator>(report);
    const lm::Culture culture = CultureOf(module, *services, options.culture);
    const auto manager = module.CreateManager(*services);
    host::Check(
        manager->InitEx(host::ToString16(options.root), host::ToString16(options.alternative),
                        host::Make<host::ErrorListener>(report)),
        "cannot use the localisation tree");
    const auto params = ParamsOf(options);
    qor::objptr_t<lm::ILocalizer> localizer;
    host::Check(options.buffer.empty()
                    ? manager->CreateLocalizer(host::ToString16(options.scope), culture,
                                               params.get(), localizer.Ref())
                    : manager->CreateBufferLocalizer(
                          host::ToString16(options.scope), TextOf(options.buffer),
                          TextOf(options.commonBuffer), culture, params.get(), localizer.Ref()),
                "cannot create a localizer");
    return localizer;
}

}  // namespace localize
