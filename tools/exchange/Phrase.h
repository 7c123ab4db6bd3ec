// A text as translators see it: parameters, references and plural forms are names in braces.
#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lm_exchange {

/// A translation that cannot be written as a value. The message says why, and what to do.
class Inexpressible : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What to do depends on how the file writes names.
class UnknownName : public Inexpressible {
public:
    using Inexpressible::Inexpressible;
};

struct Part {
    enum class Kind : std::uint8_t { Text, Parameter, Reference, Plural };

    Kind kind{};
    std::string text;  // what a text says, a name, or the number of a plural form

    bool operator==(const Part& other) const { return kind == other.kind && text == other.text; }
};

/// Never has two texts beside each other, nor an empty one.
using Phrase = std::vector<Part>;

void Append(Phrase& phrase, const Part& part);
void Append(Phrase& phrase, const Phrase& further);

/// What the names in a text stand for. Parameters and references look the same.
class Names {
public:
    void Add(const Phrase& phrase);
    void AddParameter(const std::string& name) { Add(Part{Part::Kind::Parameter, name}); }

    /// @throws Inexpressible for a name that nothing has, or both a parameter and a reference.
    Part::Kind KindOf(const std::string& name) const;

private:
    void Add(const Part& part);

    struct Uses {
        bool asParameter = false;
        bool asReference = false;
    };
    std::map<std::string, Uses> uses_;
};

/// "{name}" for a parameter or reference, "{1}" for a plural form; braces of the text are doubled.
std::string Flat(const Phrase& phrase);

/// The phrase that a flat text stands for.
/// @throws Inexpressible for a brace that is neither doubled nor around a known name.
Phrase ReadFlat(std::string_view text, const Names& names);

}  // namespace lm_exchange
