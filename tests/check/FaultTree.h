// A copy of the tree of the samples with a fault.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "TempTree.h"
#include "check/CheckOptions.h"
#include "check/Report.h"
#include "check/TranslationLock.h"

namespace lm_test {

/// One case of the table: what is done, and what the check says.
struct FaultCase {
    std::string name;
    std::vector<std::string> steps;
    std::vector<std::string> findings;
};

std::vector<FaultCase> ReadFaultCases(const std::string& file);

class FaultTree {
public:
    /// Copies the tree and does what the steps say.
    explicit FaultTree(const std::vector<std::string>& steps);

    lm_check::Report Check() const;

    /// That the program supplies in any case.
    const std::set<std::string>& Params() const { return options_.params; }

    std::filesystem::path Root() const { return tree_.Root() / "tree"; }

private:
    void Do(const std::string& step);
    void Change(const std::string& command, const std::string& file, const std::string& rest);
    void Option(const std::string& command, const std::string& values);
    void Accept();

    TempTree tree_;
    lm_check::CheckOptions options_;
    lm_check::TranslationLock lock_;
};

std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// "file:line:column severity rule key requests", without what is empty.
std::vector<std::string> LinesOf(const lm_check::Report& report);

}  // namespace lm_test
