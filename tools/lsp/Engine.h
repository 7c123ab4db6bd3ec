// The engine that makes final texts, as far as the server knows it.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

namespace lm_lsp {

/// A final text that is wanted. All texts are UTF-8.
struct EngineRequest {
    std::string root;         // of the tree whose plural rules hold
    std::string alternative;  // empty for none
    std::string culture;
    std::string texts;       // of the scope's file
    std::string file;        // its name in reports
    std::string common;      // texts of the common file
    std::string commonFile;  // its name in reports
    std::string key;
    std::map<std::string, std::string> params;
    std::set<std::string> numbers;  // parameters that are `number`
    std::string number;
};

struct EngineAnswer {
    bool isText = false;
    std::string text;         // or why there is none
    bool usesNumber = false;  // whether another number may make another text
};

using AskEngine = std::function<EngineAnswer(const EngineRequest& request)>;

}  // namespace lm_lsp
