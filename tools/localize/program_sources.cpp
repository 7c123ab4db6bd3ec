#include "program_sources.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <stdexcept>
#include <system_error>

#include "tree/path_text.h"

namespace localize {

namespace fs = std::filesystem;

namespace {

bool IsHidden(const fs::path& path) {
    return lm_tree::Utf8Of(path.filename()).front() == '.';
}

std::vector<std::string> SourcesBelow(const std::string& directory) {
    std::vector<std::string> files;
    std::error_code error;
    for (auto entry = fs::recursive_directory_iterator(lm_tree::PathOf(directory), error);
         !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_directory(ignored) && IsHidden(entry->path())) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file(ignored) && lm_keys::LanguageOf(entry->path())) {
            files.push_back(lm_tree::Utf8Of(entry->path()));
        }
    }
    if (error) {
        throw std::runtime_error("cannot read directory '" + directory + "': " + error.message());
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

std::vector<std::pair<std::string, lm_keys::Language>> ProgramSources(
    const std::vector<std::string>& named) {
    std::vector<std::pair<std::string, lm_keys::Language>> sources;
    std::set<std::string> known;
    for (const std::string& name : named) {
        std::error_code ignored;
        const bool isDirectory = fs::is_directory(lm_tree::PathOf(name), ignored);
        for (const std::string& file :
             isDirectory ? SourcesBelow(name) : std::vector<std::string>{name}) {
            if (known.insert(file).second) {
                sources.emplace_back(
                    file,
                    lm_keys::LanguageOf(lm_tree::PathOf(file)).value_or(lm_keys::Language::C));
            }
        }
    }
    if (sources.empty()) {
        throw std::runtime_error("no sources of a program below '" + named.front() + '\'');
    }
    return sources;
}

}  // namespace localize
