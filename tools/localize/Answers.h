// The answers to a command, as text or as JSON.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "ModuleReports.h"

namespace localize {

/// Prints each answer of `get`, `has` and `path` as soon as it is known; as JSON all of them at the
/// end.
class Answers {
public:
    using Json = nlohmann::ordered_json;

    /// @param kind  what the names are: "key" or "file".
    Answers(const char* kind, bool asJson) : kind_(kind), asJson_(asJson) {}

    /// @param field  what JSON calls the answer.
    /// @param line   the same for people.
    void Add(const std::string& name, const char* field, const Json& answer,
             const std::string& line);

    /// @param why  of JSON; people have been told.
    void AddFailure(const std::string& name, const std::string& why);

    /// A failure that is an answer all the same.
    void Fail() noexcept { all_ = false; }

    /// @return whether nothing failed.
    bool Finish();

private:
    const char* kind_;
    bool asJson_;
    bool all_ = true;
    Json results_ = Json::array();
};

/// For programs, one line; files may hold what is no UTF-8.
std::string Dump(const nlohmann::ordered_json& json);

}  // namespace localize
