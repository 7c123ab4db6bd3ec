# What a host links to have its numbers and dates written by ICU: localization_manager::host_icu, in this project
# where ICU is found and out of the installed package where it is asked for.
if(NOT TARGET localization_manager::host_icu)
    find_package(ICU 64 QUIET COMPONENTS i18n uc)
    if(ICU_FOUND)
        add_library(localization_manager::host_icu INTERFACE IMPORTED)
        set_target_properties(localization_manager::host_icu PROPERTIES
            INTERFACE_LINK_LIBRARIES "localization_manager::headers;ICU::i18n;ICU::uc")
    endif()
endif()
