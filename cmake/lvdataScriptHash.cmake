# What a Content-Security-Policy calls a script by.

# lvdata_script_hash(VARIABLE FILE): "sha256-" and the base64 text of the SHA-256 of the file. CMake has it in
# hexadecimal digits only.
function(lvdata_script_hash variable file)
    set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
    file(SHA256 "${file}" digits)
    set(text "")
    foreach(start RANGE 0 60 6)
        string(SUBSTRING "${digits}00" ${start} 6 three_bytes)
        foreach(shift IN ITEMS 18 12 6 0)
            math(EXPR position "(0x${three_bytes} >> ${shift}) & 63")
            string(SUBSTRING "${alphabet}" ${position} 1 character)
            string(APPEND text "${character}")
        endforeach()
    endforeach()
    string(SUBSTRING "${text}" 0 43 text) # 32 bytes end in the middle of a group
    set(${variable} "sha256-${text}=" PARENT_SCOPE)
endfunction()

# lvdata_page_script(VARIABLE SOURCE TARGET): writes the script as pages have it, without comments and indentation. The
# variable gets its hash. A line of the source that begins with a blank must not be part of a text.
function(lvdata_page_script variable source target)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    file(READ "${source}" text)
    string(REGEX REPLACE "\n *(//[^\n]*)?" "\n" text "${text}")
    string(REGEX REPLACE "\n\n+" "\n" text "${text}")
    file(CONFIGURE OUTPUT "${target}" CONTENT "${text}" @ONLY NEWLINE_STYLE UNIX)
    lvdata_script_hash(hash "${target}")
    set(${variable} "${hash}" PARENT_SCOPE)
endfunction()
