#include "ScopeFiles.h"

#include <algorithm>

namespace localize_po {

std::vector<ScopeFiles::File> ScopeFiles::Files(const std::vector<std::string>& scopes) const {
    if (!scope.empty()) {
        return {{scope, path}};
    }
    const auto fileOf = [this](const std::string& name) {
        return File{name, path + '/' + name + ".po"};
    };
    std::vector<File> files = {fileOf(lm_tree::CommonScope())};
    std::transform(scopes.begin(), scopes.end(), std::back_inserter(files), fileOf);
    return files;
}

void ScopeFiles::AddTo(CLI::App& command) {
    command.add_option("--scope", scope, "Scope, 'common' for the common texts; else all")
        ->type_name("NAME");
    command
        .add_option("PO", path,
                    "File of the scope; or without --scope a directory with a SCOPE.po "
                    "for each")
        ->type_name("")
        ->required();
}

}  // namespace localize_po
