#include "read_text.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "Platform.h"
#include "tree/path_text.h"

namespace localize {

namespace {

[[noreturn]] void ThrowCannotRead(const std::string& file) {
    throw std::runtime_error("cannot read '" + file +
                             "': " + std::generic_category().message(errno));
}

/// C streams, because they say why: a directory opens as well as a file, and a standard input that
/// is closed looks like an empty one to the others.
std::string ReadAll(std::FILE* stream, const std::string& file, std::size_t limit) {
    std::string text;
    std::array<char, 65536> buffer;
    std::size_t read = 0;
    while ((read = std::fread(buffer.data(), 1, buffer.size(), stream)) != 0) {
        text.append(buffer.data(), read);
        if (text.size() > limit) {
            throw std::runtime_error("'" + file + "' is larger than " +
                                     std::to_string(limit >> 20U) + " MiB");
        }
    }
    if (std::ferror(stream) != 0) {
        ThrowCannotRead(file);
    }
    return text;
}

std::string ReadFile(const std::string& file, std::size_t limit) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
        Platform::OpenForReading(lm_tree::PathOf(file)), &std::fclose);
    if (!stream) {
        ThrowCannotRead(file);
    }
    return ReadAll(stream.get(), file, limit);
}

}  // namespace

std::string ReadBytes(const std::string& file, std::size_t limit) {
    return file == kStandardInput ? ReadAll(stdin, file, limit) : ReadFile(file, limit);
}

std::string ReadText(const std::string& file) {
    std::string text = ReadBytes(file);
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) {
        text.erase(0, kByteOrderMark.size());
    }
    return text;
}

}  // namespace localize
