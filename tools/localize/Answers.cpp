#include "Answers.h"

#include <iostream>

namespace localize {

namespace {

constexpr int kVersion = 1;

}  // namespace

std::string Dump(const nlohmann::ordered_json& json) {
    return json.dump(-1, ' ', false, Answers::Json::error_handler_t::replace);
}

void Answers::Add(const std::string& name, const char* field, const Json& answer,
                  const std::string& line) {
    if (asJson_) {
        results_.push_back({{kind_, name}, {field, answer}});
    } else {
        std::cout << line << '\n';
    }
}

void Answers::AddFailure(const std::string& name, const std::string& why) {
    all_ = false;
    if (asJson_) {
        results_.push_back({{kind_, name}, {"error", why}});
    }
}

bool Answers::Finish() {
    if (asJson_) {
        std::cout << Dump({{"version", kVersion}, {"results", std::move(results_)}}) << '\n';
    }
    return all_;
}

}  // namespace localize
