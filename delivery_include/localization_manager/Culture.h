// The language, region and variant whose texts a localizer serves.
#pragma once

#include "localization_manager/Language.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// Part of the binary contract: the order and the sizes of the fields are fixed. Region and variant
/// become part of a path as they stand: a user's language tag "en-../.." leads out of the tree.
// NOLINTNEXTLINE(bugprone-exception-escape): a move to another allocator copies
struct Culture {
    Language language = Language::Arabic;
    /// As it stands in directory names, letter case kept ("br" and "BR" differ); may be empty.
    qor::string8_t region;
    /// Counts only beside a region; may be empty.
    qor::string8_t variant;
};

static_assert(sizeof(Culture) == (sizeof(void*) == 4 ? 68 : 88),
              "the size of a culture is part of the binary contract");

}  // namespace localization_manager
