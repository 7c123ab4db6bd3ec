# Installs the project at BUILD under WORK, moves the installed tree, and lets the samples and the tool
# there answer.
function(run)
    file(WRITE ${WORK}/nothing "")
    execute_process(COMMAND ${ARGN} INPUT_FILE ${WORK}/nothing OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect actual expected)
    if(NOT actual STREQUAL expected)
        message(FATAL_ERROR "expected\n${expected}\ngot\n${actual}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${WORK}/moved)

set(finding -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_PREFIX_PATH=${WORK}/moved)
if(TOOLCHAIN)
    set(finding -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -D CMAKE_FIND_ROOT_PATH=${WORK}/moved)
endif()
run(${CMAKE_COMMAND} -S ${SAMPLES}/host -B ${WORK}/host -G ${GENERATOR} ${finding})
run(${CMAKE_COMMAND} --build ${WORK}/host)
run(${EMULATOR} ${WORK}/host/sample_host${SUFFIX} ${SAMPLES}/tree)
string(REPLACE "\r" "" output "${output}")
expect("${output}" "Willkommen zurück, Ada!\n1 Datei ausgewählt\n3 Dateien ausgewählt\n")

run(${EMULATOR} ${WORK}/moved/bin/localize${SUFFIX} get --root ${SAMPLES}/tree --culture ja --scope main App.Name)
expect("${output}" "Vosperel\n")

file(GLOB_RECURSE component_headers ${WORK}/moved/include/qor/rtl/*)
expect("${component_headers}" "")

if(TOOLCHAIN)
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/keys -B ${WORK}/keys -G ${GENERATOR} ${finding}
        -D TREE=${SAMPLES}/tree)
    run(${CMAKE_COMMAND} --build ${WORK}/keys)
    return()  # the rest is not made for other systems yet
endif()

# The photo album in three languages, beside a tree that may change.
file(COPY ${SAMPLES}/album ${SAMPLES}/tree DESTINATION ${WORK}/samples)
run(${CMAKE_COMMAND} -S ${WORK}/samples/album -B ${WORK}/album -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_C_COMPILER=${CC} -D CMAKE_PREFIX_PATH=${WORK}/moved)
run(${CMAKE_COMMAND} --build ${WORK}/album)
file(GLOB_RECURSE library ${WORK}/moved/*/liblocalization_manager_c.so.1)
set(ENV{LOCALIZATION_MANAGER_LIBRARY} ${library})
set(ENV{PYTHONPATH} ${PYTHON_PACKAGE})
set(ENV{PYTHONDONTWRITEBYTECODE} 1)
set(ENV{LC_ALL} C.UTF-8)
foreach(album ${WORK}/album/album_cpp ${WORK}/album/album_c "${PYTHON};${SAMPLES}/album/album.py")
    run(${album} ${SAMPLES}/tree ru)
    expect("${output}" "Rügen – Vosperel\n0 фотографий\n1 фотография\n3 фотографии\nAda приглашает вас в альбом «Rügen».\n[Not.Written.Yet]\n")
    set(ENV{LC_ALL} de_AT.UTF-8)
    run(${album} ${SAMPLES}/tree)
    expect("${output}" "Rügen – Vosperel\n0 Fotos\n1 Foto\n3 Fotos\nAda lädt Sie zum Album „Rügen“ ein.\n[Not.Written.Yet]\n")
    set(ENV{LC_ALL} C.UTF-8)
endforeach()

# What is built follows the keys of a tree, and not its wording.
set(texts ${WORK}/samples/tree/en/Locs/main.lt)
file(READ ${texts} written)
string(REPLACE "invites you" "asks you" edited "${written}")
file(WRITE ${texts} "${edited}")
run(${CMAKE_COMMAND} --build ${WORK}/album)
if(NOT output MATCHES "Looking for changed keys" OR output MATCHES "Building")
    message(FATAL_ERROR "a change of wording makes the build say\n${output}")
endif()
string(REPLACE "Photos.Count" "Photos.Number" edited "${written}")
file(WRITE ${texts} "${edited}")
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/album RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(status EQUAL 0 OR NOT output MATCHES "Photos_Count")
    message(FATAL_ERROR "without the key the build says\n${output}")
endif()

# Numbers, where ICU is found.
if(HAS_ICU)
    run(${CMAKE_COMMAND} -S ${SAMPLES}/numbers -B ${WORK}/numbers -G ${GENERATOR} ${finding})
    run(${CMAKE_COMMAND} --build ${WORK}/numbers)
    run(${WORK}/numbers/sample_numbers ${SAMPLES}/numbers/tree de)
    string(REPLACE " " " " output "${output}")
    expect("${output}" "Rügen (2024), letztes Foto am 02.05.2024 um 00:30\n12.345 Fotos\n82 % des Speichers sind belegt. Doppelt so viel für 4,50 € im Monat, bis 31.12.2025\n")
endif()

# A build without CMake.
file(GLOB_RECURSE pkgconfig ${WORK}/moved/*/localization_manager_c.pc)
get_filename_component(directory ${pkgconfig} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${directory})
run(sh -c "'${CC}' -std=c11 -o '${WORK}/album_pc' '${SAMPLES}/album/album.c' \
    $(pkg-config --cflags --libs localization_manager_c) \
    -Wl,-rpath,$(pkg-config --variable=libdir localization_manager_c)")
run(${WORK}/album_pc ${SAMPLES}/tree de)
expect("${output}" "Rügen – Vosperel\n0 Fotos\n1 Foto\n3 Fotos\nAda lädt Sie zum Album „Rügen“ ein.\n[Not.Written.Yet]\n")
run(sh -c "'${CXX}' -std=c++17 -o '${WORK}/host_pc' '${SAMPLES}/host/main.cpp' \
    $(pkg-config --cflags --libs localization_manager) \
    -Wl,-rpath,$(pkg-config --variable=moduledir localization_manager)")
run(${WORK}/host_pc ${SAMPLES}/tree)
expect("${output}" "Willkommen zurück, Ada!\n1 Datei ausgewählt\n3 Dateien ausgewählt\n")
