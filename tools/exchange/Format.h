// A file format in which texts travel.
#pragma once

#include <string>
#include <vector>

#include "exchange/ScopeTexts.h"
#include "exchange/TranslatedFile.h"

namespace lm_exchange {

/// Says what a file looks like. What goes out, and what becomes of what comes back, is the same in all.
class Format {
public:
    /// How people speak of it.
    struct Words {
        const char* name;               // of its files in helps: "PO"
        const char* extension;          // of its files: "po"
        const char* templateExtension;  // of those without translations: "pot"
        const char* unfinished;         // what is not to be imported yet: "fuzzy"
        const char* cannotHold;         // what a file cannot have in it: "a zero"
        const char* bringUpToDate;
        const char* unknownName;  // what to do about one
    };

    explicit Format(const Words& words) : words_(words) {}
    Format(const Format&) = delete;
    Format& operator=(const Format&) = delete;
    virtual ~Format() = default;

    const Words& GetWords() const noexcept { return words_; }

    /// @return the bytes of a file with all texts that the format can hold.
    virtual std::string Write(const ScopeTexts& texts) const = 0;

    /// @param path  where the bytes were read, for messages.
    /// @throws std::runtime_error when they are no file of the format.
    virtual TranslatedFile Read(const std::string& path, const std::string& bytes) const = 0;

    /// What a unit is translated from, as the units of files have it.
    virtual std::vector<std::string> SourcesOf(const Unit& unit, const ScopeTexts& texts) const = 0;

    /// How files call the forms of plural units, in their order.
    virtual std::vector<std::string> FormNames(const ScopeTexts& texts) const = 0;

    /// Whether a file can have a text, in UTF-8, in it.
    virtual bool CanHold(const std::string& text) const = 0;

private:
    Words words_;
};

/// Whether a file can have all of a text, its comments included.
bool CanHold(const Format& format, const ScopeTexts::Text& text);

}  // namespace lm_exchange
