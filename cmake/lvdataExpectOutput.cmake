set(_lvdata_compare_output "${CMAKE_CURRENT_LIST_DIR}/compare_output.cmake")

# lvdata_expect_output(NAME PROGRAM EXPECTED [ARGUMENTS argument...] [WRITES file expected])
# A test of that name: the target PROGRAM succeeds and prints exactly the file EXPECTED. With WRITES it also leaves a
# file that is like another.
function(lvdata_expect_output name program expected)
    cmake_parse_arguments(PARSE_ARGV 3 ARG "" "" "ARGUMENTS;WRITES")
    set(files "")
    if(ARG_WRITES)
        list(GET ARG_WRITES 0 written)
        list(GET ARG_WRITES 1 expected_written)
        set(files -D "written=${written}" -D "expected_written=${expected_written}")
    endif()
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/output")
    add_test(
        NAME ${name}
        COMMAND
            "${CMAKE_COMMAND}" -D "program=$<TARGET_FILE:${program}>" -D "arguments=${ARG_ARGUMENTS}"
            -D "expected=${expected}" -D "actual=${CMAKE_CURRENT_BINARY_DIR}/output/${name}" ${files}
            -D "emulator=${CMAKE_CROSSCOMPILING_EMULATOR}"
            -P "${_lvdata_compare_output}"
    )
    set_tests_properties(${name} PROPERTIES LABELS example)
endfunction()
