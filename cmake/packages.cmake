# What `cpack` packs: packages of Debian where those are made, elsewhere all in one archive with the name of the
# system.
set(LM_PACKAGE_CONTACT "localization_manager developers <localization-manager@example.org>"
    CACHE STRING "Whom the packages name as their maintainer")

set(CPACK_PACKAGE_VENDOR ${PROJECT_NAME})
set(CPACK_PACKAGE_CONTACT ${LM_PACKAGE_CONTACT})
set(CPACK_STRIP_FILES ON)
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
find_program(LM_DPKG_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(LM_DPKG_SHLIBDEPS)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")
    set(CPACK_SYSTEM_NAME windows${bits})
elseif(LM_DPKG_SHLIBDEPS)
    set(CPACK_GENERATOR DEB)
else()
    set(CPACK_GENERATOR TGZ)
endif()

set(CPACK_COMPONENTS_ALL tool c development python)
if(TARGET localize-po)
    list(APPEND CPACK_COMPONENTS_ALL po)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/add_files.cmake)
set(CPACK_LM_DEBIAN ${PROJECT_SOURCE_DIR}/cmake/debian)

# Another build of the same release is another thing: what belongs together has the same version.
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(about "The texts of a program live in readable files, one directory per culture:
key references, parameters, and plural forms chosen by the language's rule.
")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME localization-manager)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION text)
set(CPACK_DEBIAN_TOOL_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOL_PACKAGE_CONTROL_EXTRA ${CPACK_LM_DEBIAN}/triggers)
set(CPACK_DEBIAN_TOOL_DESCRIPTION "localised texts for programs: module and tool
${about}
This package has the module that programs load, and localize, the tool for
those who write the texts, with documents and samples.")

set(c_package liblocalization-manager-c${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_C_PACKAGE_NAME ${c_package})
set(CPACK_DEBIAN_C_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_C_PACKAGE_SHLIBDEPS ON)
configure_file(cmake/debian/shlibs.in debian/shlibs @ONLY)
set(CPACK_DEBIAN_C_PACKAGE_CONTROL_EXTRA ${CPACK_LM_DEBIAN}/triggers ${PROJECT_BINARY_DIR}/debian/shlibs)
set(CPACK_DEBIAN_C_PACKAGE_DEPENDS "localization-manager ${same_version}")
set(CPACK_DEBIAN_C_DESCRIPTION "localised texts for programs: library for C
${about}
This package has the library for programs in C and in languages that call C.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblocalization-manager-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "localization-manager ${same_version}, ${c_package} ${same_version}")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "localised texts for programs: headers for C++ and C
${about}
This package has what programs are built with: the kit for C++, the header
for C, and files for CMake and pkg-config.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-localization-manager)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.9), ${c_package} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
    ${CPACK_LM_DEBIAN}/postinst ${CPACK_LM_DEBIAN}/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "localised texts for programs: package for Python
${about}
This package has the module localization_manager for Python 3.")

set(CPACK_DEBIAN_PO_PACKAGE_NAME localization-manager-po)
set(CPACK_DEBIAN_PO_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PO_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PO_DESCRIPTION "localised texts for programs: exchange with translators
${about}
This package has localize-po, which writes texts as PO files and takes them
back.")

include(CPack)
