// The record of what translations were made from.
#pragma once

#include <filesystem>
#include <string>

#include "check/TranslationLock.h"

namespace localize {

/// A file that need not exist.
std::string ReadIfThere(const std::filesystem::path& path);

/// @throws std::runtime_error with the place of what cannot be read.
lm_check::TranslationLock ReadLock(const std::filesystem::path& root);

}  // namespace localize
