#include "CyclicReferenceException.h"

#include "MessageUtf8.h"

namespace LocalizationManager::StringLocalizing::Compiling {

CyclicReferenceException::CyclicReferenceException(std::u16string_view chain)
    : std::runtime_error("Cyclic reference found:" + Text::ToUtf8(chain)) {}

}  // namespace LocalizationManager::StringLocalizing::Compiling
