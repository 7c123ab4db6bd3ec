// Runs a fuzz target over files, with any compiler: every seed and every past finding. Arguments are
// files, and directories of files at any depth; a directory that is not there holds none.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> paths(argv + 1, argv + argc);
    for (int i = 1; i < argc; ++i) {
        std::error_code isNoDirectory;
        const std::filesystem::recursive_directory_iterator below(argv[i], isNoDirectory);
        paths.insert(paths.end(), begin(below), end(below));
    }
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [](const auto& path) { return !is_regular_file(path); }),
                paths.end());
    for (const std::filesystem::path& path : paths) {
        std::cout << path << std::endl;  // before it may crash
        std::ifstream file(path, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return paths.empty() ? 1 : 0;
}
