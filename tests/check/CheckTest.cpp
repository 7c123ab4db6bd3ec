// Faults, and what the check says of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <random>

#include "FaultTree.h"
#include "Requests.h"
#include "SystemTraits.h"

namespace {

using lm_test::FaultCase;

const std::vector<FaultCase>& Cases() {
    static const std::vector<FaultCase> cases = [] {
        // They cannot be made where letter case does not tell files apart.
        const std::set<std::string> ofLetterCase = {"a file name differs in letter case",
                                                    "directories that nobody asks for",
                                                    "two spellings of a region"};
        std::vector<FaultCase> read = lm_test::ReadFaultCases(CASES "faults.txt");
        if (!lm_test::kCaseTellsFilesApart) {
            read.erase(std::remove_if(read.begin(), read.end(),
                                      [&](const FaultCase& fault) {
                                          return ofLetterCase.count(fault.name) != 0;
                                      }),
                       read.end());
        }
        return read;
    }();
    return cases;
}

std::set<std::string> CulturesWithErrors(const lm_check::Report& report) {
    std::set<std::string> cultures;
    for (const lm_check::Finding& finding : report.findings) {
        for (const lm_check::Request request : finding.requests) {
            if (finding.severity == lm_check::Severity::Error) {
                cultures.insert(report.cultures[request.culture]);
            }
        }
    }
    return cultures;
}

TEST(Check, FindsEachFaultAtItsPlaceAndNothingElse) {
    std::set<std::string> rules;
    for (const FaultCase& fault : Cases()) {
        const lm_check::Report report = lm_test::FaultTree(fault.steps).Check();
        EXPECT_EQ(lm_test::LinesOf(report), fault.findings) << fault.name;
        for (const lm_check::Finding& finding : report.findings) {
            rules.insert(lm_check::InfoOf(finding.rule).name);
        }
    }
    for (const lm_check::RuleInfo& info : lm_check::AllRules()) {
        const bool isFound = rules.count(info.name) != 0;
        EXPECT_TRUE(isFound || !lm_test::kCaseTellsFilesApart) << info.name;
    }
}

TEST(Check, CallsAnErrorWhatMakesARequestFailAndNothingElse) {
    for (const FaultCase& fault : Cases()) {
        const lm_test::FaultTree tree(fault.steps);
        EXPECT_EQ(CulturesWithErrors(tree.Check()),
                  lm_test::CulturesWithFailures(tree.Root(), tree.Params()))
            << fault.name;
    }
}

/// Parts of files, put where they do not belong.
constexpr const char* kParts[] = {
    "'",         "{",        "}",     "+",   ",",    "=",        "$count", "\n",
    "{$count:",  "App.Name", " ; x",  "\\",  "\xE4", "Greeting", "$x",     ".number",
    "{$x.date:", "A.B = ",   "n==1;", "'x'", "%",    "1",        ":"};

/// Puts some parts into a file, or takes some bytes out of it.
std::string Damage(std::string text, std::mt19937& random) {
    for (auto i = random() % 3 + 1; i != 0; --i) {
        const std::size_t at = random() % (text.size() + 1);
        if (random() % 2 == 0) {
            text.insert(at, kParts[random() % std::size(kParts)]);
        } else {
            text.erase(at, random() % 12);
        }
    }
    return text;
}

TEST(Check, AgreesWithTheEngineAboutDamagedTrees) {
    const char* const wanted = std::getenv("CHECK_DAMAGED_TREES");
    const unsigned long trees = wanted != nullptr ? std::stoul(wanted) : 30;
    const std::vector<std::string> files = {
        "de/Locs/main.lt",   "de/Locs/common.lt",   "en-au/Locs/settings.lt", "pt/Locs/common.lt",
        "pt/Locs/main.lt",   "ru/Locs/settings.lt", "neutral/Locs/main.lt",   "ja/Locs/common.lt",
        "en/au/Plural.rule", "ar/Locs/main.lt",     "pt-br/Locs/settings.lt"};
    for (unsigned long seed = 0; seed < trees; ++seed) {
        std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
        const lm_test::FaultTree tree({});
        for (auto i = random() % 2 + 1; i != 0; --i) {
            const auto path = tree.Root() / files[random() % files.size()];
            lm_test::WriteFile(path, Damage(lm_test::ReadFile(path), random));
        }
        EXPECT_EQ(CulturesWithErrors(tree.Check()), lm_test::CulturesWithFailures(tree.Root(), {}))
            << "seed " << seed;
    }
}

}  // namespace
