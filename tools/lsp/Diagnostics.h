// Tells the editor what is wrong with the trees.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>

#include "check/Report.h"
#include "lsp/Json.h"
#include "lsp/Workspace.h"

namespace lm_lsp {

/// After a change the open text is judged at once, and its tree when nothing else is to be done. The
/// editor hears of a file only when something is new.
class Diagnostics {
public:
    /// What the editor is to be told, and whether somebody waits for something else.
    struct Surroundings {
        std::function<void(const char* method, Json params)> notify;
        std::function<bool()> isAwaited;
    };

    /// @param workspace  must outlive this.
    Diagnostics(const Workspace& workspace, Surroundings surroundings);

    /// A text was opened or changed.
    void Touch(const std::filesystem::path& path);

    /// Files may have changed.
    void TouchTrees();

    /// When there is something to do; empty for never.
    std::optional<std::chrono::milliseconds> Delay() const;

    /// Does the next part of it.
    void Work();

private:
    using ByFile = std::map<std::filesystem::path, Json>;

    void JudgeText(const std::filesystem::path& path);
    void JudgeTree(const TreePlace& tree);
    void Publish(const std::filesystem::path& path, const Json& findings);
    ByFile FindingsOf(const Snapshot& snapshot, const lm_check::Report& report) const;

    const Workspace& workspace_;
    Surroundings surroundings_;
    std::set<std::filesystem::path> touched_;
    std::set<std::filesystem::path> untold_;  // changed texts that the editor shall hear of anyway
    std::set<TreePlace> stale_;
    std::map<TreePlace, ByFile> told_;
    std::map<TreePlace, std::chrono::milliseconds> costs_;  // of judging trees
};

}  // namespace lm_lsp
