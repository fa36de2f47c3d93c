# Writes `base`.h and `base`.cpp with the bytes of `files`: see lvdataEmbed.cmake. Each byte is a character of its own:
# compilers limit how long a string may be, and no text in a file can end it.
set(declarations "")
set(definitions "")
foreach(file IN LISTS files)
    cmake_path(GET file FILENAME stem)
    string(MAKE_C_IDENTIFIER "${stem}" constant)
    if(file MATCHES "\\.css$")
        file(READ "${file}" text)
        string(REGEX REPLACE "[ \n]+" " " text "${text}")
        string(REGEX REPLACE " ?([{},>]) ?" "\\1" text "${text}")
        string(REGEX REPLACE "([:;]) " "\\1" text "${text}")
        string(REPLACE ";}" "}" text "${text}")
        string(REGEX REPLACE "([^0-9.])0[.]" "\\1." text "${text}")
        file(WRITE "${base}.css" "${text}")
        set(file "${base}.css")
    endif()
    if(file MATCHES "\\.html$")
        file(READ "${file}" text)
        string(REGEX REPLACE "([>}])\n+([<{])" "\\1\\2" text "${text}")
        file(WRITE "${base}.html" "${text}")
        set(file "${base}.html")
    endif()
    file(READ "${file}" bytes HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
    string(REGEX REPLACE "([^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,)" "\\1\n" bytes "${bytes}")
    string(APPEND declarations "extern const std::string_view ${constant};  // ${stem}\n")
    string(APPEND definitions "constexpr char ${constant}_bytes[] = {\n${bytes}'\\0'};\n")
    string(APPEND definitions "const std::string_view ${constant}(${constant}_bytes, sizeof ${constant}_bytes - 1);\n")
endforeach()

file(WRITE "${base}.h"
     "#pragma once\n\n#include <string_view>\n\nnamespace lv::embedded::${name} {\n\n${declarations}\n}\n"
)
file(WRITE "${base}.cpp"
     "#include <embedded/${name}.h>\n\nnamespace lv::embedded::${name} {\n\n${definitions}\n}\n"
)
