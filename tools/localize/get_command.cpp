// `get` prints texts.
#include <iostream>
#include <memory>
#include <optional>

#include "Answers.h"
#include "Requests.h"
#include "SourceFiles.h"
#include "commands.h"
#include "localization_manager/host/ResolveListener.h"
#include "localization_manager/host/text.h"
#include "request_options.h"

namespace localize {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

void PrintResolved(const SourceFiles& files, lm::ResolveKind kind, const std::string& source,
                   const std::string& name, const std::string& value) {
    switch (kind) {
        case lm::ResolveKind::Key:
            std::cerr << "key " << name << " from " << files.Describe(source);
            break;
        case lm::ResolveKind::Param:
            std::cerr << "parameter $" << name;
            break;
        case lm::ResolveKind::PluralForm:
            std::cerr << "plural form by $" << name;
            break;
    }
    std::cerr << ": " << value << '\n';
}

/// One line, whatever the text holds; in the escapes of localisation files, and a tab as it is.
std::string OnOneLine(const std::string& text) {
    std::string line;
    for (const char unit : text) {
        if (unit == '\n') {
            line += "\\n";
        } else {
            line.append(unit == '\\' ? 2 : 1, unit);
        }
    }
    return line;
}

bool Get(const RequestSettings& settings) {
    const Requests requests(settings);
    std::optional<SourceFiles> files;
    qor::objptr_t<host::ResolveListener> listener;
    if (settings.trace) {
        files.emplace(settings, requests.Reports());
        listener = host::Make<host::ResolveListener>(
            [&files](lm::ResolveKind kind, const std::string& source, const std::string& name,
                     const std::string& value) {
                PrintResolved(*files, kind, source, name, value);
            });
    }
    Answers answers("key", settings.json);
    for (const std::string& key : settings.names) {
        qor::string16_t text;
        const qor::result_t code =
            requests.Localizer().GetResolvedString(host::ToString16(key), text, listener.get());
        if (qor::Failed(code)) {
            answers.AddFailure(key, requests.Reports().Last());
            continue;
        }
        const std::string utf8 = host::ToUtf8(text);
        answers.Add(key, "text", utf8, settings.withKeys ? key + '\t' + OnOneLine(utf8) : utf8);
    }
    return answers.Finish();
}

void AddParam(RequestSettings& settings, const std::string& param) {
    const std::size_t equals = param.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw CLI::ValidationError("--param", "'" + param + "' is not NAME=VALUE");
    }
    settings.params.emplace_back(param.substr(0, equals), param.substr(equals + 1));
}

void AddParams(CLI::App& get, RequestSettings& settings) {
    // One value for each --param, so that a key may follow.
    get.add_option_function<std::vector<std::string>>(
           "--param",
           [&settings](const std::vector<std::string>& params) {
               for (const std::string& param : params) {
                   AddParam(settings, param);
               }
           },
           "Text of an external parameter, also for names such as NAME.number; may be repeated")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
}

void AddBuffers(CLI::App& get, RequestSettings& settings) {
    get.get_option("--scope")->required(false);
    CLI::Option* const buffer =
        get.add_option(
               "--buffer", settings.buffer,
               "Texts of the scope, instead of the tree's; - for standard input. --scope is "
               "then optional")
            ->type_name("FILE");
    get.add_option("--common-buffer", settings.commonBuffer,
                   "Common texts, instead of the tree's; - for standard input")
        ->type_name("FILE")
        ->needs(buffer);
}

}  // namespace

void AddGetCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RequestSettings>();
    CLI::App& get = AddRequestCommand(
        app, chosen,
        {"get", "Print the texts of keys", "0 all printed, 1 not all, 2 wrong usage",
         "localize get --root texts --culture ru --scope main --param count=3 Files.Selected"},
        *settings, [settings] { return Get(*settings); });
    AddParams(get, *settings);
    AddBuffers(get, *settings);
    get.add_flag("--trace", settings->trace,
                 "Tell on standard error how each text came about, and from which files");
    CLI::Option* const withKeys =
        get.add_flag("--with-keys", settings->withKeys,
                     "Print KEY, a tab and the text, with \\n for a line break and \\\\ for a "
                     "backslash");
    AddJson(get, settings->json);
    get.get_option("--json")->excludes(withKeys);
    AddNames(get, *settings, "KEY", "Keys of texts");
}

}  // namespace localize
