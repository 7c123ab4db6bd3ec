#include "lsp/members.h"

#include <algorithm>

#include "lsp/RequestError.h"

namespace lm_lsp {

namespace {

const Json kNone;

/// What an error shows of a value.
std::string Described(const Json& found) {
    constexpr std::size_t kMost = 40;
    if (&found == &kNone) {
        return "missing";
    }
    if (found.is_structured()) {
        return found.is_object() ? "an object" : "an array";
    }
    const std::string text = found.dump(-1, ' ', true);
    return text.size() > kMost ? text.substr(0, kMost) + "..." : text;
}

[[noreturn]] void Refuse(std::string_view path, const Json& found, const char* expected) {
    throw RequestError(ErrorCode::InvalidParams, "'" + std::string(path) + "' is " +
                                                     Described(found) + ": it must be " + expected);
}

/// The member, where what is above it are objects.
const Json& Reach(const Json& value, std::string_view path) {
    for (std::size_t dot = path.find('.'); dot != std::string_view::npos;
         dot = path.find('.', dot + 1)) {
        const Json& above = Find(value, path.substr(0, dot));
        if (!above.is_object()) {
            Refuse(path.substr(0, dot), above, "an object");
        }
    }
    return Find(value, path);
}

}  // namespace

const Json& Find(const Json& value, std::string_view path) {
    const Json* found = &value;
    for (;;) {
        const std::size_t dot = std::min(path.find('.'), path.size());
        if (!found->is_object()) {
            return kNone;
        }
        const auto member = found->find(std::string(path.substr(0, dot)));
        if (member == found->end()) {
            return kNone;
        }
        found = &*member;
        if (dot == path.size()) {
            return *found;
        }
        path.remove_prefix(dot + 1);
    }
}

const std::string& StringAt(const Json& value, const std::string& path) {
    const Json& found = Reach(value, path);
    if (!found.is_string()) {
        Refuse(path, found, "a string");
    }
    return found.get_ref<const std::string&>();
}

const Json& ArrayAt(const Json& value, const std::string& path) {
    const Json& found = Reach(value, path);
    if (!found.is_array()) {
        Refuse(path, found, "an array");
    }
    return found;
}

const Json& ObjectAt(const Json& value, const std::string& path) {
    const Json& found = Reach(value, path);
    if (!found.is_object()) {
        Refuse(path, found, "an object");
    }
    return found;
}

std::uint64_t NumberAt(const Json& value, const std::string& path) {
    const Json& found = Reach(value, path);
    if (!found.is_number_unsigned()) {
        Refuse(path, found, "a whole number from 0");
    }
    return found.get<std::uint64_t>();
}

std::string StringOr(const Json& value, const std::string& path, const std::string& otherwise) {
    return Find(value, path).is_null() ? otherwise : StringAt(value, path);
}

}  // namespace lm_lsp
