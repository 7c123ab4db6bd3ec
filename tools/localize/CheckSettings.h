// What `check` and `accept` are asked for.
#pragma once

#include <string>
#include <vector>

namespace localize {

enum class Format { Text, Json, Sarif, GitHub };

/// All texts are UTF-8.
struct CheckSettings {
    std::string root;
    std::string alternative;
    std::string reference;
    std::vector<std::string> cultures;
    std::vector<std::string> scopes;
    std::vector<std::string> enabled;
    std::vector<std::string> disabled;
    std::vector<std::string> params;
    Format format = Format::Text;
    bool failsOnWarnings = false;
    std::string baseline;  // empty for none
    bool updatesBaseline = false;
    bool growsBaseline = false;
    std::vector<std::string> file;  // a path, and "-" for what stands in its place; or empty
    std::vector<std::string> keys;  // of `accept`
};

}  // namespace localize
