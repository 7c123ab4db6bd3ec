# Keys that the compiler checks.
#
#   localization_manager_add_keys(TARGET ROOT DIR [REFERENCE ISO] [NAMESPACE NAME] [HEADER FILE])
#
# Writes a header with the keys of the localisation tree in DIR whenever the tree changes, as
# `localize keys --cpp` does, and lets the sources of TARGET include it: as "localized.h", or as FILE. It
# changes only with keys and parameters; then only is built anew what includes it. To be called in
# the directory that made TARGET, once for each header.
#
# A cross build runs the package's tool by CMAKE_CROSSCOMPILING_EMULATOR, or without one the tool of this
# machine that LOCALIZATION_MANAGER_LOCALIZE names.
function(localization_manager_add_keys target)
    cmake_parse_arguments(PARSE_ARGV 1 KEYS "" "ROOT;REFERENCE;NAMESPACE;HEADER" "")
    if(NOT KEYS_ROOT OR KEYS_UNPARSED_ARGUMENTS OR KEYS_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "localization_manager_add_keys(TARGET ROOT DIR [REFERENCE ISO] [NAMESPACE NAME] [HEADER FILE])")
    endif()
    if(LOCALIZATION_MANAGER_LOCALIZE)
        set(tool ${LOCALIZATION_MANAGER_LOCALIZE})
        set(tool_target ${LOCALIZATION_MANAGER_LOCALIZE})
    elseif(TARGET localization_manager::localize)
        set(tool $<TARGET_FILE:localization_manager::localize>)
        set(tool_target localization_manager::localize)
        if(CMAKE_CROSSCOMPILING)
            list(PREPEND tool ${CMAKE_CROSSCOMPILING_EMULATOR})
        endif()
    else()
        message(FATAL_ERROR "this package has no localize: set LOCALIZATION_MANAGER_LOCALIZE to one")
    endif()
    get_filename_component(root ${KEYS_ROOT} ABSOLUTE)
    set(options)
    foreach(option REFERENCE NAMESPACE)
        if(KEYS_${option})
            string(TOLOWER ${option} name)
            list(APPEND options --${name} ${KEYS_${option}})
        endif()
    endforeach()
    if(NOT KEYS_HEADER)
        set(KEYS_HEADER localized.h)
    endif()

    set(directory ${CMAKE_CURRENT_BINARY_DIR}/${target}_keys)
    get_filename_component(header_directory ${directory}/${KEYS_HEADER} DIRECTORY)
    file(MAKE_DIRECTORY ${header_directory})
    file(GLOB texts CONFIGURE_DEPENDS ${root}/*/Locs/*.lt)
    # The header keeps its time when it says the same, so that another file tells when it was looked at.
    add_custom_command(
        OUTPUT ${directory}/${KEYS_HEADER}.stamp BYPRODUCTS ${directory}/${KEYS_HEADER}
        COMMAND ${tool} keys --cpp --root ${root} ${options} --output ${directory}/${KEYS_HEADER}
        COMMAND ${CMAKE_COMMAND} -E touch ${directory}/${KEYS_HEADER}.stamp
        DEPENDS ${texts} ${tool_target}
        COMMENT "Looking for changed keys in ${root}" VERBATIM)
    target_sources(${target} PRIVATE ${directory}/${KEYS_HEADER}.stamp)
    target_include_directories(${target} PRIVATE ${directory})
endfunction()
