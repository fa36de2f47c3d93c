# Fails unless `program argument` succeeds and prints exactly the file `expected`; what it prints goes to the file `actual`.
execute_process(COMMAND "${program}" "${argument}" OUTPUT_FILE "${actual}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${program} ${argument} failed: ${result}")
endif()

execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${actual}" "${expected}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${actual} is no longer what ${expected} holds")
endif()
