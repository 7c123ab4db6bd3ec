// Programs that are measured from outside.
#pragma once

#include <string>

namespace lm_bench {

/// What a program took.
struct Use {
    double processor;  // seconds
    double memory;     // bytes, at the most
};

/// A program of this project.
std::string Tool(const char* name);

/// Runs a program that must find nothing wrong. Another process starts it: the peak of a program's
/// memory is not less than what its parent had.
/// @throws std::runtime_error when it fails.
Use RunProgram(const std::string& program);

/// Runs a program, and prints the seconds of the processor, and the bytes, that it took.
/// @param arguments  the program and what it is given, with a null pointer behind.
/// @return zero when the program found nothing wrong.
int PrintUse(char** arguments);

}  // namespace lm_bench
