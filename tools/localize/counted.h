// Numbers of things, for people.
#pragma once

#include <cstddef>
#include <string>

namespace localize {

inline std::string Counted(std::size_t count, const char* one, const char* several) {
    return std::to_string(count) + ' ' + (count == 1 ? one : several);
}

}  // namespace localize
