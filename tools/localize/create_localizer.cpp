#include "create_localizer.h"

#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "ReportedError.h"
#include "UsageError.h"
#include "localization_manager/host/host.h"
#include "read_text.h"
#include "tree/path_text.h"

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

/// Nothing is written by a culture's conventions here: $count.number is what is given for count, unless it
/// is given itself.
qor::objptr_t<host::ParamResolver> ParamsOf(const RequestSettings& settings) {
    std::map<std::string, std::string> given;
    for (const auto& [name, text] : settings.params) {
        given[name] = text;
    }
    return host::Make<host::ParamResolver>(
        [given = std::move(given)](const std::string& name) -> std::optional<std::string> {
            auto found = given.find(name);
            if (found == given.end()) {
                found = given.find(std::string(host::SuppliedParam(name)));
            }
            return found != given.end() ? std::optional(found->second) : std::nullopt;
        });
}

/// The module would report a broken contract.
void RequireDirectory(const std::string& directory) {
    std::error_code error;
    const auto status = std::filesystem::status(lm_tree::PathOf(directory), error);
    if (!error && !std::filesystem::is_directory(status)) {
        error = std::make_error_code(std::errc::not_a_directory);
    }
    if (error) {
        throw std::runtime_error("cannot read directory '" + directory + "': " + error.message());
    }
}

qor::string16_t TextOf(const std::string& file) {
    return file.empty() ? qor::string16_t() : host::ToString16(ReadText(file));
}

}  // namespace

qor::objptr_t<lm::ILocalizer> CreateLocalizer(const host::Module& module,
                                              const RequestSettings& settings,
                                              ModuleReports& reports) try {
    RequireDirectory(settings.root);
    if (!settings.alternative.empty()) {
        RequireDirectory(settings.alternative);
    }
    const host::Report report = reports.Callback();
    const auto services = host::Make<host::ServiceLocator>(report);
    const lm::Culture culture = CultureOf(module, *services, settings.culture);
    const auto manager = module.CreateManager(
        *services, settings.anyNames ? host::Names::Any : host::Names::InsideTheTree);
    host::Check(
        manager->InitEx(host::ToString16(settings.root), host::ToString16(settings.alternative),
                        host::Make<host::ErrorListener>(report)),
        "cannot use the localisation tree");
    const auto params = ParamsOf(settings);
    qor::objptr_t<lm::ILocalizer> localizer;
    host::Check(settings.buffer.empty()
                    ? manager->CreateLocalizer(host::ToString16(settings.scope), culture,
                                               params.get(), localizer.Ref())
                    : manager->CreateBufferLocalizer(
                          host::ToString16(settings.scope), TextOf(settings.buffer),
                          TextOf(settings.commonBuffer), culture, params.get(), localizer.Ref()),
                "cannot create a localizer");
    return localizer;
} catch (const host::ResultError& error) {
    if (reports.Count() != 0) {
        throw ReportedError(error.what());
    }
    throw;
}

}  // namespace localize
