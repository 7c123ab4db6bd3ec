# Builds the samples against an installed copy, and lets them and the tool answer.
function(run)
    file(WRITE ${WORK}/nothing "")
    execute_process(COMMAND ${ARGN} INPUT_FILE ${WORK}/nothing OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\r" "" output "${output}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect actual expected)
    if(NOT actual STREQUAL expected)
        message(FATAL_ERROR "expected\n${expected}\ngot\n${actual}")
    endif()
endfunction()

function(build sample)
    run(${CMAKE_COMMAND} --no-warn-unused-cli -S ${SAMPLES}/${sample} -B ${WORK}/${sample} -G ${GENERATOR}
        -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_C_COMPILER=${CC} ${finding})
    run(${CMAKE_COMMAND} --build ${WORK}/${sample})
endfunction()

# SAMPLES, LOCALIZE   the installed directory and tool
# WORK                what is built
# CXX, CC, GENERATOR  what it is built with
# PYTHON              the interpreter
# finding             options for CMake to find the package
# run_path, run_path_c  options for the compiler where the loader finds neither module nor library by itself
# TOOLCHAIN, EMULATOR, SUFFIX  of another system
function(try_samples)
    set(ENV{LC_ALL} C.UTF-8)
    set(host "Willkommen zurück, Ada!\n1 Datei ausgewählt\n3 Dateien ausgewählt\n")
    set(album "Rügen – Vosperel\n0 Fotos\n1 Foto\n3 Fotos\nAda lädt Sie zum Album „Rügen“ ein.\n[Not.Written.Yet]\n")

    run(${EMULATOR} ${LOCALIZE} get --root ${SAMPLES}/tree --culture ja --scope main App.Name)
    expect("${output}" "Vosperel\n")
    build(host)
    run(${EMULATOR} ${WORK}/host/sample_host${SUFFIX} ${SAMPLES}/tree)
    expect("${output}" "${host}")

    # The photo album in three languages.
    build(album)
    set(albums "${EMULATOR} ${WORK}/album/album_cpp${SUFFIX}" "${EMULATOR} ${WORK}/album/album_c${SUFFIX}")
    if(NOT TOOLCHAIN)
        list(APPEND albums "${PYTHON} ${SAMPLES}/album/album.py")
    endif()
    foreach(program ${albums})
        separate_arguments(program)
        run(${program} ${SAMPLES}/tree ru)
        expect("${output}" "Rügen – Vosperel\n0 фотографий\n1 фотография\n3 фотографии\nAda приглашает вас в альбом «Rügen».\n[Not.Written.Yet]\n")
        if(TOOLCHAIN)
            continue()  # whose language is the runner's
        endif()
        set(ENV{LC_ALL} de_AT.UTF-8)
        run(${program} ${SAMPLES}/tree)
        expect("${output}" "${album}")
        set(ENV{LC_ALL} C.UTF-8)
    endforeach()
    if(TOOLCHAIN)
        return()
    endif()

    # A build without CMake.
    run(sh -c "'${CC}' -std=c11 -o '${WORK}/album_pc' '${SAMPLES}/album/album.c' \
        $(pkg-config --cflags --libs localization_manager_c) ${run_path_c}")
    run(${WORK}/album_pc ${SAMPLES}/tree de)
    expect("${output}" "${album}")
    run(sh -c "'${CXX}' -std=c++17 -o '${WORK}/host_pc' '${SAMPLES}/host/main.cpp' \
        $(pkg-config --cflags --libs localization_manager) ${run_path}")
    run(${WORK}/host_pc ${SAMPLES}/tree)
    expect("${output}" "${host}")
endfunction()
