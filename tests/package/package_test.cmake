# Installs the project at BUILD under WORK, moves the installed tree, and lets the sample host and the
# tool there answer.
function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
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

run(${CMAKE_COMMAND} -S ${SAMPLES}/host -B ${WORK}/host -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_PREFIX_PATH=${WORK}/moved)
run(${CMAKE_COMMAND} --build ${WORK}/host)
run(${WORK}/host/sample_host ${SAMPLES}/tree)
expect("${output}" "Willkommen zurück, Ada!\n1 Datei ausgewählt\n3 Dateien ausgewählt\n")

run(${WORK}/moved/bin/localize get --root ${SAMPLES}/tree --culture ja --scope main App.Name)
expect("${output}" "Vosperel\n")

file(GLOB_RECURSE component_headers ${WORK}/moved/include/qor/rtl/*)
expect("${component_headers}" "")
