// Words of XLIFF 1.2 that are both written and read.
#pragma once

namespace lm_xliff {

inline constexpr const char* kNamespace = "urn:oasis:names:tc:xliff:document:1.2";
inline constexpr const char* kVersion = "1.2";

/// Whom the note is from that says the plural rule, in the header.
inline constexpr const char* kPluralForms = "Plural-Forms";

inline constexpr const char* kNeedsTranslation = "needs-translation";

}  // namespace lm_xliff
