// Looks through the directories of one tree.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "tree/Tree.h"

namespace lm_tree {

/// Fills in what a `Tree` knows.
class TreeReader {
public:
    explicit TreeReader(Tree& tree) : tree_(tree) {}

    /// @throws std::runtime_error
    void Read();

private:
    void ReadSide(Side side);
    void ReadDirectory(Side side, const std::filesystem::path& directory);
    void ReadTexts(Side side, const std::string& directory, const std::filesystem::path& texts);
    void AddTexts(Side side, const std::string& directory, const std::string& name,
                  std::uintmax_t size);
    void ReadRegion(Side side, const std::string& directory, const std::filesystem::path& region);
    void AddRule(Side side, const std::string& path, std::uintmax_t size);
    void AddOverlay();
    void AddStray(Side side, const std::string& path, const std::string& why);
    void AddCulture(const CultureName& culture, Side side, const std::string& path);
    void CompareCase();
    void Sort();

    Tree& tree_;
    std::map<std::string, CultureName> cultures_;
    std::map<std::string, std::pair<Side, std::string>> origins_;  // of the cultures
};

}  // namespace lm_tree
