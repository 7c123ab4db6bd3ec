#include "edit/format.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "edit/ValuePrinter.h"
#include "source/tokens.h"

namespace lm_edit {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Range;
using lm_source::Token;
using lm_source::TokenKind;

namespace {

/// Longer keys stand for themselves.
constexpr std::size_t kLongestAligned = 40;

/// How far lines are indented that belong to a longer key.
constexpr std::size_t kIndent = 4;

std::size_t CountLineBreaks(std::string_view space) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < space.size(); ++i) {
        const bool isPair = space[i] == '\n' && i != 0 && space[i - 1] == '\r';
        count += (space[i] == '\n' || space[i] == '\r') && !isPair ? 1 : 0;
    }
    return count;
}

/// What the file ends its lines with, as far as its first line break says.
std::string_view LineBreakOf(const Document& document, const std::vector<Token>& tokens) {
    for (const Token& token : tokens) {
        const std::string_view bytes = document.Bytes(token.range);
        const std::size_t at = bytes.find_first_of("\r\n");
        if (token.kind == TokenKind::WhiteSpace && at != std::string_view::npos) {
            return bytes.substr(at, bytes.substr(at, 2) == "\r\n" ? 2 : 1);
        }
    }
    return "\n";
}

/// An entry, a comment, or the end: with the number of line breaks before it.
struct Part {
    enum class Kind { Entry, Comment, CommentAfter, End };

    Kind kind;
    std::size_t lineBreaks;
    Range range;
    const Entry* entry = nullptr;
};

std::vector<Part> PartsOf(const Document& document, const std::vector<Token>& tokens) {
    std::vector<Part> parts;
    std::size_t lineBreaks = 0;
    auto entry = document.Entries().begin();
    for (const Token& token : tokens) {
        if (!parts.empty() && parts.back().entry != nullptr &&
            token.range.begin < parts.back().entry->end) {
            continue;
        }
        if (token.kind == TokenKind::WhiteSpace) {
            lineBreaks = CountLineBreaks(document.Bytes(token.range));
        } else if (token.kind == TokenKind::Key) {
            parts.push_back({Part::Kind::Entry, lineBreaks, token.range, &*entry++});
            lineBreaks = 0;
        } else if (token.kind == TokenKind::Comment) {
            const bool isAfter = lineBreaks == 0 && !parts.empty();
            parts.push_back({isAfter ? Part::Kind::CommentAfter : Part::Kind::Comment, lineBreaks,
                             token.range});
            lineBreaks = 0;
        }
    }
    parts.push_back({Part::Kind::End, lineBreaks, {}});
    return parts;
}

class Formatter {
public:
    explicit Formatter(const Document& document)
        : document_(document),
          tokens_(TokensOf(document)),
          parts_(PartsOf(document, tokens_)),
          lineBreak_(LineBreakOf(document, tokens_)),
          values_(document, lineBreak_) {}

    std::string Format() {
        std::string text(document_.Bytes().substr(0, document_.Content().begin));
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            const Part& part = parts_[i];
            if (part.kind == Part::Kind::CommentAfter) {
                text.append("  ").append(document_.Bytes(part.range));
                continue;
            }
            const std::size_t least = i == 0 ? 0 : 1;
            for (std::size_t line = 0; line < std::max(part.lineBreaks, least); ++line) {
                text += lineBreak_;
            }
            if (part.kind == Part::Kind::Comment) {
                text += document_.Bytes(part.range);
            } else if (part.kind == Part::Kind::Entry) {
                text += EntryText(*part.entry, KeyWidth(i));
            }
        }
        return text.append(document_.Bytes().substr(document_.Content().end));
    }

private:
    /// Entries belong together as long as no line stands between them.
    bool FollowsEntry(std::size_t part) const {
        if (part == 0 || parts_[part].kind == Part::Kind::Comment ||
            parts_[part].kind == Part::Kind::End) {
            return false;
        }
        return parts_[part].lineBreaks <= 1 && (parts_[part - 1].kind == Part::Kind::Entry ||
                                                parts_[part - 1].kind == Part::Kind::CommentAfter);
    }

    /// Of the keys that an entry is aligned with. It is known from the first one on.
    std::size_t KeyWidth(std::size_t part) {
        if (FollowsEntry(part)) {
            return keyWidth_;
        }
        keyWidth_ = 0;
        std::size_t member = part;
        do {
            if (parts_[member].kind == Part::Kind::Entry &&
                parts_[member].range.size() <= kLongestAligned) {
                keyWidth_ = std::max<std::size_t>(keyWidth_, parts_[member].range.size());
            }
        } while (FollowsEntry(++member));
        return keyWidth_;
    }

    std::string EntryText(const Entry& entry, std::size_t keyWidth) const {
        std::string text(document_.Key(entry));
        const bool isAligned = text.size() <= kLongestAligned;
        text.append(isAligned ? keyWidth - text.size() : 0, ' ').append(" = ");
        const std::size_t plusColumn = isAligned ? keyWidth + 1 : kIndent;
        return text + values_.Print(document_.ValueOf(entry), text.size(), plusColumn);
    }

    const Document& document_;
    const std::vector<Token> tokens_;
    const std::vector<Part> parts_;
    const std::string_view lineBreak_;
    const ValuePrinter values_;
    std::size_t keyWidth_ = 0;
};

/// What a file says, comments included: all of it but white space.
std::vector<std::string_view> WordsOf(const Document& document) {
    std::vector<std::string_view> words;
    for (const Token& token : TokensOf(document)) {
        if (token.kind != TokenKind::WhiteSpace) {
            words.push_back(document.Bytes(token.range));
        }
    }
    return words;
}

}  // namespace

std::string Format(const Document& document) {
    if (!document.Mistakes().empty() || document.GetEncoding().isUtf16) {
        throw std::invalid_argument("only a file without mistakes can be formatted");
    }
    std::string text = Formatter(document).Format();
    const Document formatted(text);
    if (!formatted.Mistakes().empty() || WordsOf(formatted) != WordsOf(document)) {
        throw std::logic_error("formatting would change what the file says");
    }
    return text;
}

}  // namespace lm_edit
