// What a program gets of POSIX and gives back.
#include <csignal>

#include "Platform.h"

namespace Platform {

std::vector<std::string> CommandLine(int argc, const char* const* argv) {
    return {argv, argv + argc};
}

/// A reader that goes early is a failed write, and not the end of the process.
void PrepareStandardStreams() noexcept {
    std::signal(SIGPIPE, SIG_IGN);
}

std::FILE* OpenForReading(const std::filesystem::path& path) noexcept {
    return std::fopen(path.c_str(), "rb");
}

}  // namespace Platform
