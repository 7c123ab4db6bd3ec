#include "gettext_catalogue.h"

#include <cstdlib>
#include <stdexcept>

namespace lm_bench {

namespace {

constexpr const char* kHeader =
    "msgid \"\"\n"
    "msgstr \"\"\n"
    "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
    "\"Plural-Forms: nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && "
    "(n%100<10 || n%100>20) ? 1 : 2);\\n\"\n";

std::string Entry(const Message& message) {
    const Pattern& first = message.forms[0];
    std::string entry = "\nmsgid \"" + message.key + "\"\n";
    if (message.kind == Kind::Plain) {
        return entry + "msgstr \"" + first.before + "\"\n";
    }
    if (message.kind == Kind::Parameter) {
        return entry + "msgstr \"" + first.before + "%s" + first.after + "\"\n";
    }
    entry += "msgid_plural \"" + message.key + "\"\n";
    for (std::size_t i = 0; i < message.forms.size(); ++i) {
        entry += "msgstr[" + std::to_string(i) + "] \"" + message.forms[i].before + "%d" +
                 message.forms[i].after + "\"\n";
    }
    return entry;
}

}  // namespace

std::filesystem::path GettextFile(const std::filesystem::path& directory) {
    return directory / "ru" / "LC_MESSAGES" / (std::string(kGettextDomain) + ".mo");
}

void WriteGettextCatalogue(const std::filesystem::path& directory, const Workload& workload) {
    const std::filesystem::path compiled = GettextFile(directory);
    std::string source = kHeader;
    for (const Message& message : workload.Messages()) {
        source += Entry(message);
    }
    const std::filesystem::path sourceFile = directory / "messages.po";
    WriteFile(sourceFile, source);
    create_directories(compiled.parent_path());
    Run("msgfmt --output-file=" + compiled.string() + ' ' + sourceFile.string());
}

void Run(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("failed: " + command);
    }
}

}  // namespace lm_bench
