# cmake -D source=DIR -D tree=DIR -D expected=SENTENCE -P expect_refusal.cmake -- ARGUMENT...
# Configures the library alone with these arguments; fails unless CMake refuses with that sentence.
set(arguments "")
foreach(index RANGE ${CMAKE_ARGC})
    if("${CMAKE_ARGV${index}}" MATCHES "^-D[a-zA-Z0-9_]+=") # those above have a space after -D
        list(APPEND arguments "${CMAKE_ARGV${index}}")
    endif()
endforeach()

file(REMOVE_RECURSE "${tree}")
execute_process(
    COMMAND
        "${CMAKE_COMMAND}" -S "${source}" -B "${tree}" -DLVDATA_BUILD_TESTS=OFF -DLVDATA_BUILD_ANALYSIS=OFF
        -DLVDATA_BUILD_TOOL=OFF -DLVDATA_BUILD_EXAMPLES=OFF ${arguments}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output
)
string(REGEX REPLACE "[ \n]+" " " output "${output}") # CMake breaks lines where it likes
string(FIND "${output}" "${expected}" position)
if(result EQUAL 0 OR position EQUAL -1)
    message(FATAL_ERROR "expected CMake to refuse with: ${expected}\nresult ${result}, output:\n${output}")
endif()
