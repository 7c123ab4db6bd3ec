# What a host compiles and links, in this project and, as localization_manager::headers, out of the
# installed package.
include_guard(GLOBAL)

add_library(lm_host INTERFACE)
add_library(localization_manager::headers ALIAS lm_host)
set_target_properties(lm_host PROPERTIES EXPORT_NAME headers)
target_compile_features(lm_host INTERFACE cxx_std_17)
target_include_directories(lm_host INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(lm_host INTERFACE $<BUILD_INTERFACE:lm_interfaces> ${CMAKE_DL_LIBS})

# Makes a program of this project a host: it finds the module beside itself, and once installed in the
# library directory.
function(lm_make_host program)
    target_link_libraries(${program} PRIVATE localization_manager::headers lm_options)
    add_dependencies(${program} localization_manager)
    if(WIN32)
        return()  # the module is installed beside its hosts
    endif()
    # The older kind of run path: a sanitizer's runtime loads the module in the program's place, and
    # the newer kind counts only for what the program loads itself.
    target_link_options(${program} PRIVATE LINKER:--disable-new-dtags)
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    # One run path for the build tree and the installed program: to make room for another one, the
    # build would pad it with empty elements, which stand for the working directory.
    set_target_properties(${program} PROPERTIES
        BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH $ORIGIN:$ORIGIN/${libraries})
endfunction()
