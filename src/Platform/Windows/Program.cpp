// What a program gets of Windows and gives back.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>

#include "Paths.h"
#include "Platform.h"
#include "System.h"

// Of the C runtime, which does not declare it for strict C++.
extern "C" int __wgetmainargs(int* count, wchar_t*** words, wchar_t*** environment, int wildcards,
                              int* startup);  // NOLINT(bugprone-reserved-identifier)

namespace Platform {

namespace {

std::string Utf8Of(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();  // the zero at the end
    return bytes;
}

UINT codePageBefore = 0;

/// The console outlives the program, and its code page would, too.
void RestoreCodePage() {
    ::SetConsoleOutputCP(codePageBefore);
}

}  // namespace

/// The runtime's own have been narrowed to the system's code page, which knows few characters.
std::vector<std::string> CommandLine(int /*argc*/, const char* const* /*argv*/) {
    int count = 0;
    wchar_t** words = nullptr;
    wchar_t** environment = nullptr;
    constexpr int kWithoutWildcards = 0;
    int startup = 0;
    ::__wgetmainargs(&count, &words, &environment, kWithoutWildcards, &startup);
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i) {
        arguments.push_back(Utf8Of(words[i]));
    }
    return arguments;
}

/// The same bytes as on every system, and a console that shows them as they are meant.
void PrepareStandardStreams() noexcept {
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
    codePageBefore = ::GetConsoleOutputCP();
    if (codePageBefore != 0 && codePageBefore != CP_UTF8 &&
        ::SetConsoleOutputCP(CP_UTF8) != FALSE) {
        std::atexit(&RestoreCodePage);
    }
}

std::FILE* OpenForReading(const std::filesystem::path& path) noexcept {
    return ::_wfopen(path.c_str(), L"rb");
}

}  // namespace Platform
