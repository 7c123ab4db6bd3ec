#include "ParameterNames.h"

#include <sstream>
#include <stdexcept>

#include "source/Scanner.h"

namespace localize_po {

ParameterNames::ParameterNames(std::string_view text) {
    std::istringstream lines{std::string(text)};
    std::size_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        std::istringstream words(line.substr(0, line.find('#')));
        std::string key;
        std::string before;
        std::string after;
        std::string rest;
        if (!(words >> key)) {
            continue;
        }
        if (!(words >> before >> after) || words >> rest ||
            lm_source::NameLength(after) != after.size()) {
            throw std::invalid_argument(
                "line " + std::to_string(number) +
                " is not 'KEY OLD NEW', with a name that a parameter may have");
        }
        names_[{key, before}] = after;
    }
}

const std::string& ParameterNames::Of(const std::string& key, const std::string& name) const {
    for (const std::string& where : {key, std::string("*")}) {
        const auto found = names_.find({where, name});
        if (found != names_.end()) {
            return found->second;
        }
    }
    return name;
}

}  // namespace localize_po
