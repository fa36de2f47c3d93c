# Fails unless `program` succeeds with `arguments` and prints exactly the file `expected`; what it prints goes to the file
# `actual`. If it is given, the file `written` must then hold the same as `expected_written`.
execute_process(COMMAND "${program}" ${arguments} OUTPUT_FILE "${actual}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${program} ${arguments} failed: ${result}")
endif()

function(compare actual expected)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${actual}" "${expected}" RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${actual} is no longer what ${expected} holds")
    endif()
endfunction()

compare("${actual}" "${expected}")
if(written)
    compare("${written}" "${expected_written}")
endif()
