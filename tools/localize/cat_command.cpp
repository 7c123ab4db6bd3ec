// `cat` prints the bytes of a resource file.
#include <array>
#include <cstdint>
#include <iostream>
#include <memory>

#include "Requests.h"
#include "commands.h"
#include "localization_manager/host/text.h"
#include "request_options.h"

namespace localize {

namespace host = localization_manager::host;

namespace {

bool Cat(const RequestSettings& settings) {
    const Requests requests(settings);
    const std::string& file = settings.names.front();
    const std::size_t before = requests.Reports().Count();
    qor::objptr_t<qor::IIO> stream;
    qor::result_t code = requests.Localizer().GetStream(host::ToString16(file), stream.Ref());
    std::array<char, 65536> buffer;
    std::uint32_t read = 0;
    do {
        if (!qor::Failed(code)) {
            code = stream->Read(buffer.data(), buffer.size(), &read);
        }
        if (qor::Failed(code)) {
            requests.FailureOf(code, file, before);
            return false;
        }
    } while (read != 0 && std::cout.write(buffer.data(), read));
    return true;
}

}  // namespace

void AddCatCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<RequestSettings>();
    CLI::App& cat = AddRequestCommand(
        app, chosen,
        {"cat", "Print the bytes of a file", "0 printed, 1 not, 2 wrong usage",
         "localize cat --root texts --culture ja --scope main logo.png > logo.png"},
        *settings, [settings] { return Cat(*settings); });
    AddNames(cat, *settings, "FILE", "Resource file of the scope").expected(1);
}

}  // namespace localize
