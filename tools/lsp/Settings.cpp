#include "lsp/Settings.h"

#include "lsp/RequestError.h"
#include "lsp/members.h"
#include "tree/path_text.h"

namespace lm_lsp {

namespace {

namespace fs = std::filesystem;

fs::path ReadPath(const Json& options, const char* name, const fs::path& folder) {
    const std::string text = StringOr(options, name, "");
    if (text.empty()) {
        return {};
    }
    // Without a slash at its end, which would leave an empty name there.
    const fs::path path = fs::absolute(folder / lm_tree::PathOf(text)).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

void Switch(lm_check::CheckOptions& check, const Json& options, const char* name, bool isOn) {
    if (Find(options, name).is_null()) {
        return;
    }
    for (const Json& rule : ArrayAt(options, name)) {
        const auto known =
            rule.is_string() ? lm_check::RuleOfName(rule.get<std::string>()) : std::nullopt;
        if (!known) {
            throw RequestError(ErrorCode::InvalidParams, "'" + std::string(name) + "' has " +
                                                             rule.dump() + ", which is no rule");
        }
        check.switches[*known] = isOn;
    }
}

}  // namespace

Settings ReadSettings(const Json& initialize, const fs::path& folder) {
    constexpr const char* kOptions = "initializationOptions";
    Settings settings;
    if (Find(initialize, kOptions).is_null()) {
        return settings;
    }
    const Json& options = ObjectAt(initialize, kOptions);
    settings.root = ReadPath(options, "root", folder);
    settings.alternative = ReadPath(options, "alternative", folder);
    if (settings.root.empty() && !settings.alternative.empty()) {
        throw RequestError(ErrorCode::InvalidParams,
                           "'alternative' is of use with 'root' only: give both");
    }
    settings.check.reference = StringOr(options, "reference", "");
    if (!Find(options, "params").is_null()) {
        for (const auto& param : ObjectAt(options, "params").items()) {
            if (!param.value().is_string()) {
                throw RequestError(ErrorCode::InvalidParams,
                                   "'params' has " + param.value().dump() + " for '" + param.key() +
                                       "': it must be a string");
            }
            settings.params[param.key()] = param.value();
            settings.check.params.insert(param.key());
        }
    }
    Switch(settings.check, options, "enable", true);
    Switch(settings.check, options, "disable", false);
    return settings;
}

}  // namespace lm_lsp
