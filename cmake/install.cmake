# Installs module, headers and tool, and the package that find_package(localization_manager) takes.
include(CMakePackageConfigHelpers)
include(cmake/host_program.cmake)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/localization_manager)

set_target_properties(localization_manager PROPERTIES EXPORT_NAME module)
install(TARGETS localization_manager lm_host EXPORT localization_manager
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT localization_manager
    NAMESPACE localization_manager:: DESTINATION ${package_dir} FILE localization_manager-targets.cmake)

# Without the parts of the framework that only the module is made of.
install(DIRECTORY delivery_include/ src/Platform/${LM_PLATFORM}/public/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN *.h PATTERN rtl EXCLUDE)

configure_package_config_file(
    cmake/localization_manager-config.cmake.in localization_manager-config.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    localization_manager-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/localization_manager-config.cmake
    ${PROJECT_BINARY_DIR}/localization_manager-config-version.cmake
    DESTINATION ${package_dir})

if(TARGET localize)
    install(TARGETS localize)
endif()
