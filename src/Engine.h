// How the component classes name the engine, whose root namespace is called like one of them.
#pragma once

namespace LocalizationManager::StringLocalizing {}

namespace localization_manager {

namespace engine = ::LocalizationManager::StringLocalizing;

}  // namespace localization_manager
