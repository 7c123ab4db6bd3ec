// A text by its generated name.
#include "localized.h"

std::string Selected(const localized::MainTexts& texts) {
    return texts.Files_Selected(3);
}
