#include "GeneratedScopeName.h"

#include <boost/random/mersenne_twister.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include "Platform.h"

namespace localization_manager {

namespace {

/// Draws a UUID of version 4. Not left to the library's generator, whose use of the engine differs
/// between its versions.
boost::uuids::uuid DrawUuid(boost::random::mt19937& engine) {
    boost::uuids::uuid uuid = {};
    auto* byte = uuid.begin();
    while (byte != uuid.end()) {
        const std::uint32_t draw = engine();
        for (unsigned shift = 0; shift < 32; shift += 8) {
            *byte++ = static_cast<std::uint8_t>(draw >> shift);
        }
    }
    std::uint8_t& version = *(uuid.begin() + 6);
    std::uint8_t& variant = *(uuid.begin() + 8);
    version = static_cast<std::uint8_t>((version & 0x0FU) | 0x40U);
    variant = static_cast<std::uint8_t>((variant & 0x3FU) | 0x80U);
    return uuid;
}

}  // namespace

std::u16string GenerateScopeName() {
    return GenerateScopeName(Platform::CalendarTime());
}

std::u16string GenerateScopeName(std::int64_t second) {
    boost::random::mt19937 engine;
    engine.seed(static_cast<std::uint32_t>(second));
    const std::string name = boost::uuids::to_string(DrawUuid(engine));
    return std::u16string(name.begin(), name.end());
}

}  // namespace localization_manager
