// What conventions leave to the program.
#pragma once

#include <string>

namespace localization_manager::host {

struct IcuOptions {
    /// Of amounts that bring none, as ISO 4217 names it: "EUR". Empty: amounts are given as "12.50 EUR".
    std::string currency;

    /// In which times are shown: "Europe/Berlin". Empty: the system's, as it is when texts of a culture
    /// are first opened.
    std::string timeZone;

    /// Whether texts that a call inserts are put between U+2068 and U+2069, when the first letter in them that
    /// has a direction runs against the culture's: an English name in an Arabic text, and the other way
    /// round. Numbers, and what stands for a derived name, are left alone.
    bool isolates = false;
};

}  // namespace localization_manager::host
