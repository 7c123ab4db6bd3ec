// What is wrong at one place of a tree.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "check/Rule.h"
#include "source/LineTable.h"
#include "source/Range.h"
#include "tree/TreeFile.h"

namespace lm_check {

using lm_source::Place;
using lm_source::Range;
using lm_tree::Side;

/// A part of a file, or a file or directory as a whole, whose range is empty and at the start.
struct Location {
    Side side = Side::Root;
    std::string path;  // below its tree
    Range range;
    Place begin;
    Place end;             // behind the last character
    bool isInTree = true;  // else the path is one that the caller gave
};

/// A culture and a scope, by their numbers in the report.
struct Request {
    std::uint16_t culture = 0;
    std::uint16_t scope = 0;  // the common one stands for all scopes of the culture

    bool operator<(Request other) const noexcept {
        return culture != other.culture ? culture < other.culture : scope < other.scope;
    }
    bool operator==(Request other) const noexcept {
        return culture == other.culture && scope == other.scope;
    }
};

/// Another place that has to do with a finding.
struct Related {
    Location location;
    std::string message;
};

/// All texts are UTF-8, as far as the files are.
struct Finding {
    Rule rule{};
    Severity severity{};
    Location location;
    std::string key;                // as it is written; empty where no key is concerned
    std::vector<Request> requests;  // that it holds for, ordered; none when it harms nobody
    std::string message;            // what is wrong, and what to do
    std::string line;               // that it stands in, or of a long one the part around it
    std::uint32_t caret = 0;        // where in `line`, in bytes
    std::string engineText;         // what the engine reports, place and caret included, if it does
    std::vector<Related> related;
};

}  // namespace lm_check
