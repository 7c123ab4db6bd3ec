# Installs module, library for C, headers and tool, and the package that find_package(localization_manager) takes.
include(CMakePackageConfigHelpers)
include(cmake/host_program.cmake)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/localization_manager)

set_target_properties(localization_manager PROPERTIES EXPORT_NAME module)
set(module_dir ${CMAKE_INSTALL_LIBDIR})
if(WIN32)
    set(module_dir ${CMAKE_INSTALL_BINDIR})  # beside the programs, which look for it there
endif()
set(libraries localization_manager lm_host)
set(headers delivery_include/ src/Platform/${LM_PLATFORM}/public/)
set(pkgconfig_packages localization_manager)
if(TARGET localization_manager_c)
    list(APPEND libraries localization_manager_c)
    list(APPEND headers bindings/c/include/)
    list(APPEND pkgconfig_packages localization_manager_c)
endif()
install(TARGETS ${libraries} EXPORT localization_manager
    LIBRARY DESTINATION ${module_dir})
install(EXPORT localization_manager
    NAMESPACE localization_manager:: DESTINATION ${package_dir} FILE localization_manager-targets.cmake)

# Without the parts of the framework that only the module is made of.
install(DIRECTORY ${headers}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN *.h PATTERN rtl EXCLUDE)

configure_package_config_file(
    cmake/localization_manager-config.cmake.in localization_manager-config.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    localization_manager-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    cmake/host_icu.cmake
    ${PROJECT_BINARY_DIR}/localization_manager-config.cmake
    ${PROJECT_BINARY_DIR}/localization_manager-config-version.cmake
    cmake/localization_manager-keys.cmake
    DESTINATION ${package_dir})

file(RELATIVE_PATH LM_PREFIX_FROM_PKGCONFIG
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
set(LM_DL_FLAGS)
if(CMAKE_DL_LIBS)
    set(LM_DL_FLAGS -l${CMAKE_DL_LIBS})
endif()
foreach(package ${pkgconfig_packages})
    configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(TARGET localize)
    install(TARGETS localize EXPORT localization_manager)
    install(FILES tools/localize/localize.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES tools/localize/completion/localize
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()

# What `cpack` packs: all of the above in one archive, with the name of the system.
set(CPACK_GENERATOR TGZ)
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")
    set(CPACK_SYSTEM_NAME windows${bits})
endif()
set(CPACK_PACKAGE_VENDOR ${PROJECT_NAME})
include(CPack)
