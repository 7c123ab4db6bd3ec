# Installs module, library for C, headers, tool, documents and samples, and the package that
# find_package(localization_manager) takes. Each part is a component, of which cmake/packages.cmake makes a
# package.
include(CMakePackageConfigHelpers)
include(cmake/host_program.cmake)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/localization_manager)

set_target_properties(localization_manager PROPERTIES EXPORT_NAME module)
set(module_dir ${CMAKE_INSTALL_LIBDIR})
if(WIN32)
    set(module_dir ${CMAKE_INSTALL_BINDIR})  # beside the programs, which look for it there
endif()
install(TARGETS localization_manager lm_host EXPORT localization_manager
    LIBRARY DESTINATION ${module_dir} COMPONENT tool)
install(TARGETS localization_manager_c EXPORT localization_manager
    RUNTIME DESTINATION ${module_dir} COMPONENT c
    LIBRARY DESTINATION ${module_dir} COMPONENT c NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(EXPORT localization_manager COMPONENT development
    NAMESPACE localization_manager:: DESTINATION ${package_dir} FILE localization_manager-targets.cmake)

# Without the parts of the framework that only the module is made of.
install(DIRECTORY delivery_include/ src/Platform/${LM_PLATFORM}/public/ bindings/c/include/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
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
    DESTINATION ${package_dir} COMPONENT development)

file(RELATIVE_PATH LM_PREFIX_FROM_PKGCONFIG
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
set(LM_DL_FLAGS)
if(CMAKE_DL_LIBS)
    set(LM_DL_FLAGS -l${CMAKE_DL_LIBS})
endif()
foreach(package localization_manager localization_manager_c)
    configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

# In the places that they have in the project, since they refer to each other.
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT tool)
install(DIRECTORY docs samples editors DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT tool
    REGEX /samples/CMakeLists.txt$ EXCLUDE
    PATTERN .gitignore EXCLUDE)
install(FILES bindings/python/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/bindings/python COMPONENT tool)

if(TARGET localize)
    install(TARGETS localize EXPORT localization_manager COMPONENT tool)
    install(FILES tools/localize/localize.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    install(FILES tools/localize/completion/localize
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
endif()

if(TARGET localize-po)
    install(TARGETS localize-po COMPONENT po)
    install(FILES tools/localize-po/localize-po.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT po)
endif()

# Where the packages of Debian have it; elsewhere pip installs it.
install(DIRECTORY bindings/python/localization_manager DESTINATION lib/python3/dist-packages
    COMPONENT python EXCLUDE_FROM_ALL
    PATTERN __pycache__ EXCLUDE)

include(cmake/packages.cmake)
