// Finds what may be keys in the source of a program.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "keys/Language.h"

namespace lm_keys {

/// A string literal that is spelt like a key, or a name that stands for one in the code of cpp_header.h.
struct Word {
    bool isLiteral;
    std::string_view text;  // in the source; of a literal without prefix and quotes
};

/// Knows comments and literals and nothing else of a language. What it takes for a literal that is none ends
/// with the line, so that a mistake does not spread.
class WordScanner {
public:
    /// @param source  has to live as long as the words.
    WordScanner(std::string_view source, Language language)
        : source_(source), language_(language) {}

    /// In the order of the source.
    std::vector<Word> Scan();

private:
    bool Begins(std::string_view what) const { return source_.substr(at_, what.size()) == what; }
    bool SkipBehind(std::string_view end);  // to the end of the source when there is none
    bool SkipComment();
    bool ReadLiteral();
    void ReadRawLiteral();
    bool ReadName();
    bool IsMember(std::size_t name) const;
    void AddLiteral(std::string_view text);

    std::string_view source_;
    Language language_;
    std::size_t at_ = 0;
    std::vector<Word> words_;
};

}  // namespace lm_keys
