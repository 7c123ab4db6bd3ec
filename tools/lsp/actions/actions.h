// All code actions; each looks for what it can mend, in a file of its own.
#pragma once

#include "lsp/actions/Offers.h"
#include "lsp/actions/Scene.h"

namespace lm_lsp {

using Action = void (*)(const Scene& scene, Offers& offers);

/// Adds one key of the reference, or all that the file lacks.
void AddMissingKeys(const Scene& scene, Offers& offers);

/// Writes as many forms as the plural rule has.
void WriteForms(const Scene& scene, Offers& offers);

/// A reference that begins or ends every form says the same outside; any other has to be written out, if
/// what it stands for can be.
void TakeOutReference(const Scene& scene, Offers& offers);

/// A quote in the middle of a word ends the string there, and what follows is a mistake.
void EscapeQuote(const Scene& scene, Offers& offers);

/// Has a backslash stand for itself.
void DoubleBackslash(const Scene& scene, Offers& offers);

/// Records that a translation fits the reference as it is.
void AcceptText(const Scene& scene, Offers& offers);

/// Removes a rule from a comment that ignores nothing of it, and the comment with its last rule.
void RemoveSuppression(const Scene& scene, Offers& offers);

/// Writes a comment that ignores a finding.
void IgnoreFinding(const Scene& scene, Offers& offers);

}  // namespace lm_lsp
