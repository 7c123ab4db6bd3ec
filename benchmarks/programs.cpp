#include "programs.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace lm_bench {

namespace fs = std::filesystem;

namespace {

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

std::string Tool(const char* name) {
    return (fs::read_symlink("/proc/self/exe").parent_path() / name).string();
}

Use RunProgram(const std::string& program) {
    const std::string command =
        "exec " + fs::read_symlink("/proc/self/exe").string() + " --run " + program;
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
    std::array<char, 128> line{};
    Use use{};
    if (std::fgets(line.data(), line.size(), output.get()) == nullptr ||
        !(std::istringstream(line.data()) >> use.processor >> use.memory)) {
        throw std::runtime_error("failed: " + command);
    }
    return use;
}

int PrintUse(char** arguments) {
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, arguments[0], &silence, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&silence);
    int status = 0;
    rusage use{};
    if (failure != 0 || wait4(child, &status, 0, &use) != child || status != 0) {
        return 1;
    }
    std::cout << Seconds(use.ru_utime) + Seconds(use.ru_stime) << ' ' << use.ru_maxrss * 1024
              << '\n';
    return 0;
}

}  // namespace lm_bench
