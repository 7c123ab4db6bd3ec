#include "source/tokens.h"

#include <algorithm>

#include "source/Scanner.h"

namespace lm_source {

namespace {

/// Goes from token to token. Entries tell keys from references, and skipped parts are one token each.
class Tokenizer {
public:
    Tokenizer(const Document& document, std::uint32_t begin)
        : document_(document),
          scanner_(document.Bytes(), document.Content()),
          entry_(std::partition_point(
              document.Entries().begin(), document.Entries().end(),
              [begin](const Entry& entry) { return entry.key.begin < begin; })),
          skipped_(std::partition_point(document.Skipped().begin(), document.Skipped().end(),
                                        [begin](Range range) { return range.end <= begin; })) {}

    Token TokenAt(std::uint32_t at) {
        const Range content = document_.Content();
        if (at < content.begin) {
            return {TokenKind::Mark, {at, content.begin}};
        }
        if (at >= content.end) {
            return {TokenKind::Padding, {at, static_cast<std::uint32_t>(document_.Bytes().size())}};
        }
        std::uint32_t limit = content.end;
        if (skipped_ != document_.Skipped().end()) {
            if (skipped_->begin <= at) {
                return {TokenKind::Skipped, {at, (skipped_++)->end}};
            }
            limit = skipped_->begin;
        }
        Token token = Read(at);
        token.range.end = std::min(token.range.end, limit);
        return token;
    }

private:
    Token Read(std::uint32_t at) {
        switch (scanner_.At(at)) {
            case ';':
                return {TokenKind::Comment, {at, scanner_.LineEnd(at)}};
            case '\'':
                return {TokenKind::String, {at, scanner_.FindQuote(at + 1) + 1}};
            case '$':
                return {TokenKind::Parameter, {at, scanner_.SkipName(at + 1)}};
            case '=':
                return {TokenKind::Equals, {at, at + 1}};
            case '+':
                return {TokenKind::Plus, {at, at + 1}};
            case '{':
                return {TokenKind::OpenBrace, {at, at + 1}};
            case ':':
                return {TokenKind::Colon, {at, at + 1}};
            case ',':
                return {TokenKind::Comma, {at, at + 1}};
            case '}':
                return {TokenKind::CloseBrace, {at, at + 1}};
            default:
                return scanner_.BeginsName(at)
                           ? Token{NameKindAt(at), {at, scanner_.SkipName(at)}}
                           : Token{TokenKind::WhiteSpace, {at, scanner_.SkipSpace(at)}};
        }
    }

    TokenKind NameKindAt(std::uint32_t at) {
        while (entry_ != document_.Entries().end() && entry_->end <= at) {
            ++entry_;
        }
        const bool isInValue = entry_ != document_.Entries().end() && entry_->key.end <= at;
        return isInValue ? TokenKind::Reference : TokenKind::Key;
    }

    const Document& document_;
    Scanner scanner_;
    std::vector<Entry>::const_iterator entry_;
    std::vector<Range>::const_iterator skipped_;
};

}  // namespace

std::vector<Token> TokensOf(const Document& document) {
    return TokensOf(document, {0, static_cast<std::uint32_t>(document.Bytes().size())});
}

std::vector<Token> TokensOf(const Document& document, Range range) {
    std::vector<Token> tokens;
    Tokenizer tokenizer(document, range.begin);
    for (std::uint32_t at = range.begin; at < range.end; at = tokens.back().range.end) {
        tokens.push_back(tokenizer.TokenAt(at));
    }
    return tokens;
}

}  // namespace lm_source
