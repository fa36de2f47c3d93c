# Fails unless `program` succeeds with `arguments` and prints exactly the file `expected`; what it prints goes to the file
# `actual`. If it is given, the file `written` must then hold the same as `expected_written`. An `emulator` is that of a
# cross build, where a program may print line breaks of its own.
execute_process(COMMAND ${emulator} "${program}" ${arguments} OUTPUT_FILE "${actual}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${program} ${arguments} failed: ${result}")
endif()

function(compare actual expected)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files ${ARGN} "${actual}" "${expected}" RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${actual} is no longer what ${expected} holds")
    endif()
endfunction()

set(option "")
if(emulator)
    set(option --ignore-eol)
endif()
compare("${actual}" "${expected}" ${option})
if(written)
    compare("${written}" "${expected_written}")
endif()
