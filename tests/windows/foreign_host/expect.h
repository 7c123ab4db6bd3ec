// Expectations, which are counted and told by their places.
#pragma once

#include "system.h"

namespace foreign_host {

inline unsigned failures = 0;

inline void Print(const char* text) {
    unsigned long count = 0;
    while (text[count] != 0) {
        ++count;
    }
    WriteFile(GetStdHandle(static_cast<unsigned long>(-11)), text, count, &count, nullptr);
}

inline void Expect(bool isMet, const char* file, int line) {
    if (!isMet) {
        char digits[] = ":0000: not met\n";
        for (int i = 4; i > 0; --i, line /= 10) {
            digits[i] = static_cast<char>('0' + line % 10);
        }
        Print(file);
        Print(digits);
        ++failures;
    }
}

}  // namespace foreign_host

#define EXPECT(condition) foreign_host::Expect(condition, __FILE_NAME__, __LINE__)
