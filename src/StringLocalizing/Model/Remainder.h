// A term of plural conditions.
#pragma once

#include <boost/lambda/bind.hpp>
#include <boost/lambda/lambda.hpp>
#include <cstdint>
#include <functional>

namespace LocalizationManager::StringLocalizing::Model {

/// What is left of the number that a condition is about, negative for a negative one. The library's own
/// `%` does not know `long long`, which a number of 64 bits is on systems of 32.
/// @param divisor  not zero.
inline auto Remainder(std::int64_t divisor) {
    return boost::lambda::bind<std::int64_t>(std::modulus<>(), boost::lambda::_1, divisor);
}

}  // namespace LocalizationManager::StringLocalizing::Model
