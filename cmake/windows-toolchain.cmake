# Cross builds for Windows with the compilers of Debian. The toolchain file of a width sets `triplet` and
# includes this one; scripts/setup-windows installs what is named here.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

# A program or module needs libraries of the system alone, not the compiler's.
foreach(kind EXE MODULE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -static)
endforeach()

# What else is looked for, a package that was installed for example, may be given as well.
cmake_path(SET project_root NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/..)
list(APPEND CMAKE_FIND_ROOT_PATH ${project_root}build/windows/root /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()

set(CMAKE_CROSSCOMPILING_EMULATOR ${project_root}scripts/run-windows-program)
