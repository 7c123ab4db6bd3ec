#include "Program.h"

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

namespace localize {

namespace {

ExitStatus Run(const Program& program, const std::vector<std::string>& commandLine) {
    std::vector<const char*> words;
    words.reserve(commandLine.size());
    for (const std::string& word : commandLine) {
        words.push_back(word.c_str());
    }
    const Task task = ParseCommandLine(program, static_cast<int>(words.size()), words.data());
    const bool succeeded = !task || task();
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write to standard output");
    }
    return succeeded ? ExitStatus::Done : ExitStatus::Failed;
}

ExitStatus RunAndReport(const Program& program, int argc, const char* const* argv) {
    try {
        return Run(program, Platform::CommandLine(argc, argv));
    } catch (const UsageError& error) {
        std::cerr << program.name << ": " << error.what()
                  << "\nRun with --help for more information.\n";
        return ExitStatus::WrongUsage;
    } catch (const CannotRunError& error) {
        std::cerr << program.name << ": " << error.what() << '\n';
        return ExitStatus::WrongUsage;
    } catch (const ReportedError&) {
        return ExitStatus::Failed;
    } catch (const std::exception& error) {
        std::cerr << program.name << ": " << error.what() << '\n';
        return ExitStatus::Failed;
    }
}

}  // namespace

int RunProgram(const Program& program, int argc, const char* const* argv) {
    Platform::PrepareStandardStreams();
    return static_cast<int>(RunAndReport(program, argc, argv));
}

}  // namespace localize
