#include "ScopeFiles.h"

#include <iostream>

#include "exchange/ScopeTexts.h"

namespace localize {

std::vector<ScopeFiles::File> ScopeFiles::Files(const lm_tree::Tree& tree,
                                                const std::optional<lm_tree::CultureName>& culture,
                                                const lm_tree::CultureName& reference,
                                                const ExchangeProgram& program) const {
    if (!scope.empty()) {
        return {{scope, path}};
    }
    std::vector<std::string> scopes = tree.ScopesOf(reference);
    scopes.insert(scopes.begin(), lm_tree::CommonScope());
    std::vector<File> files;
    for (const std::string& name : scopes) {
        const std::string other =
            culture ? lm_exchange::LessSpecificDirectory(tree, *culture, name) : std::string();
        if (other.empty()) {
            files.push_back(
                {name, std::string(path).append(1, '/').append(name).append(1, '.').append(
                           program.format.GetWords().extension)});
        } else {
            std::cerr << program.name << ": " << name << " is left out: in " << culture->name
                      << " its texts are those of " << other << '\n';
        }
    }
    return files;
}

void ScopeFiles::AddTo(CLI::App& command, const lm_exchange::Format& format) {
    const lm_exchange::Format::Words& words = format.GetWords();
    command.add_option("--scope", scope, "Scope, 'common' for the common texts; else all")
        ->type_name("NAME");
    command
        .add_option(words.name, path,
                    std::string("File of the scope, - for standard output or input; or without "
                                "--scope a directory with a SCOPE.") +
                        words.extension + " for each")
        ->type_name("")
        ->required();
}

}  // namespace localize
