// What the page looks like and does.
#pragma once

namespace lm_report {

extern const char* const kPageStyle;
extern const char* const kPageScript;

}  // namespace lm_report
