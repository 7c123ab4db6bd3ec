// What the command line asks for.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace localize {

enum class Command { Get, Has, Path, Cat };

/// All texts are UTF-8.
struct Options {
    Command command = Command::Get;
    std::string module;  // file of the module; empty to look where it belongs
    std::string root;
    std::string alternative;
    std::string culture;
    std::string scope;         // with a buffer: prefix of the name that reports show; may be empty
    std::string buffer;        // file with the scope's texts; empty to take the tree's
    std::string commonBuffer;  // file with the common texts; empty to take the tree's
    std::vector<std::pair<std::string, std::string>> params;
    bool trace = false;
    std::vector<std::string> names;  // keys or files, at least one
};

}  // namespace localize
