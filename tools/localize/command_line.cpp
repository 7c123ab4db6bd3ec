#include "command_line.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "UsageError.h"
#include "read_text.h"

namespace localize {

namespace {

/// How many letters have to be typed, left out or swapped with their neighbour to get one word from
/// the other.
std::size_t Distance(std::string_view left, std::string_view right) {
    using Row = std::vector<std::size_t>;
    std::vector<Row> rows(left.size() + 1, Row(right.size() + 1));
    for (std::size_t i = 0; i <= left.size(); ++i) {
        for (std::size_t j = 0; j <= right.size(); ++j) {
            if (i == 0 || j == 0) {
                rows[i][j] = i + j;
                continue;
            }
            const std::size_t same = left[i - 1] == right[j - 1] ? 0 : 1;
            rows[i][j] =
                std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + same});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
                rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
            }
        }
    }
    return rows[left.size()][right.size()];
}

bool HasCommands(const CLI::App& app) {
    return !app.get_subcommands([](const CLI::App*) { return true; }).empty();
}

/// The library only says that there has to be a command.
void RequireKnownCommand(const CLI::App& app, std::string_view word) {
    constexpr std::size_t kLongest = 64;  // that a person may have meant
    std::string nearest;
    std::size_t least = 0;
    for (const CLI::App* const command :
         app.get_subcommands([](const CLI::App*) { return true; })) {
        const std::string& name = command->get_name();
        const std::size_t distance = Distance(word.substr(0, kLongest), name);
        if (nearest.empty() || distance < least) {
            nearest = name;
            least = distance;
        }
    }
    if (least != 0) {
        throw UsageError("unknown command '" + std::string(word) + "'; the nearest is '" + nearest +
                         "'");
    }
}

/// The library reads the file of --config, and does not say why it cannot.
[[noreturn]] void ThrowUnreadable(const CLI::App& app, const CLI::FileError& error) {
    const CLI::Option* const config = app.get_config_ptr();
    std::string why = error.what();
    try {
        if (config != nullptr && config->count() != 0) {
            ReadBytes(config->results().front());
        }
    } catch (const std::runtime_error& unreadable) {
        why = unreadable.what();
    }
    throw UsageError(why);
}

}  // namespace

Task ParseCommandLine(const Program& program, int argc, const char* const* argv) {
    Task chosen;
    CLI::App app(program.description, program.name);
    app.set_version_flag("--version", std::string(program.name) + ' ' + LOCALIZE_VERSION);
    app.require_subcommand(1);
    app.footer(program.footer);
    program.addCommands(app, chosen);
    CLI::App* commands = &app;
    for (int word = 1; word < argc && argv[word][0] != '-' && HasCommands(*commands); ++word) {
        RequireKnownCommand(*commands, argv[word]);
        commands = commands->get_subcommand(argv[word]);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& helpOrVersion) {
        app.exit(helpOrVersion);
        return {};
    } catch (const CLI::FileError& error) {
        ThrowUnreadable(app, error);
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    return chosen;
}

}  // namespace localize
