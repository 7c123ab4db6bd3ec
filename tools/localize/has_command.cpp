// `has` tells whether keys exist.
#include <memory>

#include "Answers.h"
#include "Requests.h"
#include "commands.h"
#include "localization_manager/host/text.h"
#include "request_options.h"

namespace localize {

namespace host = localization_manager::host;

namespace {

bool Has(const RequestSettings& settings) {
    const Requests requests(settings);
    Answers answers("key", settings.json);
    for (const std::string& key : settings.names) {
        const std::size_t before = requests.Reports().Count();
        const bool exists = !qor::Failed(requests.Localizer().HasString(host::ToString16(key)));
        if (settings.json && requests.Reports().Count() != before) {
            answers.AddFailure(key, requests.Reports().Last());
            continue;
        }
        answers.Add(key, "exists", exists, exists ? "yes" : "no");
        if (!exists) {
            answers.Fail();
        }
    }
    return answers.Finish();
}

}  // namespace

void AddHasCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RequestSettings>();
    CLI::App& has = AddRequestCommand(
        app, chosen,
        {"has", "Tell whether keys exist", "0 all exist, 1 not all, 2 wrong usage",
         "localize has --root texts --culture de --scope main Greeting"},
        *settings, [settings] { return Has(*settings); });
    AddJson(has, settings->json);
    AddNames(has, *settings, "KEY", "Keys of texts");
}

}  // namespace localize
