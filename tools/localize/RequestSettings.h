// What the commands that ask the module are asked for.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace localize {

/// All texts are UTF-8.
struct RequestSettings {
    std::string module;  // file of the module; empty to look where it belongs
    std::string root;
    std::string alternative;
    std::string culture;
    std::string scope;         // with a buffer: prefix of the generated name; may be empty
    std::string buffer;        // file with the scope's texts; empty to take the tree's
    std::string commonBuffer;  // file with the common texts; empty to take the tree's
    std::vector<std::pair<std::string, std::string>> params;
    bool trace = false;
    bool withKeys = false;
    bool json = false;
    bool anyNames = false;           // names may lead out of the tree
    std::vector<std::string> names;  // keys or files, at least one
};

}  // namespace localize
