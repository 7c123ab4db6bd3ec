# What a library of Windows exports, EXPORTS, separated by commas; and that it needs the system alone.
execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)

function(expect expected text pattern)
    string(REGEX MATCHALL "${pattern}" found "${text}")
    list(TRANSFORM found REPLACE "${pattern}" "\\1")
    list(SORT found)
    if(NOT found STREQUAL expected)
        message(FATAL_ERROR "expected ${expected}, got ${found}")
    endif()
endfunction()

expect("KERNEL32.dll;msvcrt.dll" "${headers}" "DLL Name: ([^\n]*)")
string(REGEX REPLACE "^.*Name Pointer. Table\n" "" exports "${headers}")
string(REGEX REPLACE "\n\n.*$" "" exports "${exports}\n\n")
string(REPLACE "," ";" EXPORTS "${EXPORTS}")
list(SORT EXPORTS)
expect("${EXPORTS}" "${exports}" "[[] *[0-9]+. ([^\n]*)")
