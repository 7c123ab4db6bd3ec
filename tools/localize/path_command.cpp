// `path` prints where resource files lie.
#include <memory>

#include "Answers.h"
#include "Requests.h"
#include "commands.h"
#include "localization_manager/host/text.h"
#include "request_options.h"

namespace localize {

namespace host = localization_manager::host;

namespace {

bool Path(const RequestSettings& settings) {
    const Requests requests(settings);
    Answers answers("file", settings.json);
    for (const std::string& file : settings.names) {
        qor::string16_t path;
        const std::size_t before = requests.Reports().Count();
        const qor::result_t code = requests.Localizer().GetPath(host::ToString16(file), path);
        if (qor::Failed(code)) {
            answers.AddFailure(file, requests.FailureOf(code, file, before));
        } else {
            answers.Add(file, "path", host::ToUtf8(path), host::ToUtf8(path));
        }
    }
    return answers.Finish();
}

}  // namespace

void AddPathCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RequestSettings>();
    CLI::App& path = AddRequestCommand(
        app, chosen,
        {"path", "Print the paths of files", "0 all found, 1 not all, 2 wrong usage",
         "localize path --root texts --culture ja --scope main logo.png"},
        *settings, [settings] { return Path(*settings); });
    AddJson(path, settings->json);
    AddNames(path, *settings, "FILE", "Resource files of the scope");
}

}  // namespace localize
