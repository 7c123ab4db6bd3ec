// Texts with names in braces as content of XLIFF's elements.
#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace lm_xliff {

/// Fills a `source` or `target`. A name becomes an `x` whose id is the name; one that was there before
/// has ":2" behind it, or a greater number. What XML cannot hold becomes an `x`, too.
/// @param flat  as a unit has it.
void AppendInline(pugi::xml_node element, std::string_view flat);

/// The text that an element holds. What is no placeholder of ours becomes a name that no text has.
std::string FlatOf(pugi::xml_node element);

/// A text for people to read, without what XML cannot hold.
std::string Holdable(std::string_view text);

}  // namespace lm_xliff
