# Fails when a C++ source of the project is in no list of the build, so that nothing compiles it: a forgotten test would
# pass for ever. `commands` is the compile_commands.json of a build of everything.
file(READ "${commands}" text)
set(folders lvdata tools python examples benchmarks tests fuzz)
list(TRANSFORM folders APPEND "/*.cpp")
list(TRANSFORM folders PREPEND "${source_dir}/")
file(GLOB_RECURSE sources ${folders})
list(
    FILTER sources EXCLUDE # what only builds for Windows have
    REGEX "/tests/install/|/files/windows/|/tests/windows/|_windows[.]cpp$|/exported_constants[.]cpp$"
)
foreach(source IN LISTS sources)
    string(FIND "${text}" "\"${source}\"" place)
    if(place EQUAL -1)
        message(SEND_ERROR "${source} is in no list")
    endif()
endforeach()
