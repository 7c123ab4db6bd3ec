// localize: a host on the command line.
#include <csignal>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "UsageError.h"
#include "commands.h"
#include "create_localizer.h"
#include "localization_manager/host/Module.h"
#include "parse_options.h"

namespace {

namespace host = localization_manager::host;

enum ExitStatus { kAnswered = 0, kUnanswered = 1, kWrongUsage = 2 };

int Run(int argc, const char* const* argv) {
    const auto options = localize::ParseOptions(argc, argv);
    bool answered = true;
    if (options) {
        const auto module =
            options->module.empty() ? host::Module() : host::Module(options->module);
        const auto localizer = localize::CreateLocalizer(module, *options);
        answered = localize::Run(*options, *localizer);
    }
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write to standard output");
    }
    return answered ? kAnswered : kUnanswered;
}

}  // namespace

int main(int argc, char** argv) {
#ifdef SIGPIPE
    // A reader that goes early is a failed write, and not the end of the process.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        return Run(argc, argv);
    } catch (const localize::UsageError& error) {
        std::cerr << "localize: " << error.what() << "\nRun with --help for more information.\n";
        return kWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "localize: " << error.what() << '\n';
        return kUnanswered;
    }
}
