#include "lsp/Settings.h"

#include "lsp/RequestError.h"
#include "tree/path_text.h"

namespace lm_lsp {

namespace {

namespace fs = std::filesystem;

fs::path ReadPath(const Json& options, const char* name, const fs::path& folder) {
    const std::string text = options.value(name, std::string());
    if (text.empty()) {
        return {};
    }
    // Without a slash at its end, which would leave an empty name there.
    const fs::path path = fs::absolute(folder / lm_tree::PathOf(text)).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

void Switch(lm_check::CheckOptions& check, const Json& options, const char* name, bool isOn) {
    for (const Json& rule : options.value(name, Json::array())) {
        const auto known = lm_check::RuleOfName(rule.get<std::string>());
        if (!known) {
            throw RequestError(ErrorCode::InvalidParams, std::string(name) + ": unknown rule '" +
                                                             rule.get<std::string>() + "'");
        }
        check.switches[*known] = isOn;
    }
}

}  // namespace

Settings ReadSettings(const Json& options, const fs::path& folder) {
    Settings settings;
    if (options.is_null()) {
        return settings;
    }
    settings.root = ReadPath(options, "root", folder);
    settings.alternative = ReadPath(options, "alternative", folder);
    if (settings.root.empty() && !settings.alternative.empty()) {
        throw RequestError(ErrorCode::InvalidParams, "alternative needs root");
    }
    settings.check.reference = options.value("reference", std::string());
    settings.params = options.value("params", std::map<std::string, std::string>());
    for (const auto& [name, value] : settings.params) {
        settings.check.params.insert(name);
    }
    Switch(settings.check, options, "enable", true);
    Switch(settings.check, options, "disable", false);
    return settings;
}

}  // namespace lm_lsp
