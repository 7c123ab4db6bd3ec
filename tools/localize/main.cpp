// localize: prints, checks and edits the texts of a localisation tree.
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "CannotRunError.h"
#include "ExitStatus.h"
#include "Platform.h"
#include "ReportedError.h"
#include "UsageError.h"
#include "command_line.h"

namespace {

using localize::ExitStatus;

ExitStatus Run(const std::vector<std::string>& commandLine) {
    std::vector<const char*> words;
    words.reserve(commandLine.size());
    for (const std::string& word : commandLine) {
        words.push_back(word.c_str());
    }
    const localize::Task task =
        localize::ParseCommandLine(static_cast<int>(words.size()), words.data());
    const bool succeeded = !task || task();
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write to standard output");
    }
    return succeeded ? ExitStatus::Done : ExitStatus::Failed;
}

ExitStatus RunAndReport(int argc, const char* const* argv) {
    try {
        return Run(Platform::CommandLine(argc, argv));
    } catch (const localize::UsageError& error) {
        std::cerr << "localize: " << error.what() << "\nRun with --help for more information.\n";
        return ExitStatus::WrongUsage;
    } catch (const localize::CannotRunError& error) {
        std::cerr << "localize: " << error.what() << '\n';
        return ExitStatus::WrongUsage;
    } catch (const localize::ReportedError&) {
        return ExitStatus::Failed;
    } catch (const std::exception& error) {
        std::cerr << "localize: " << error.what() << '\n';
        return ExitStatus::Failed;
    }
}

}  // namespace

int main(int argc, char** argv) {
    Platform::PrepareStandardStreams();
    return static_cast<int>(RunAndReport(argc, argv));
}
