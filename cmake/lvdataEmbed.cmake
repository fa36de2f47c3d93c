# Files as constants of a program, so that it needs none of them when it runs.

# lvdata_embed(TARGET NAME file...)
# The target gets a header <embedded/NAME.h> and its source: for each file a constant `std::string_view` with the file's
# bytes (a style sheet or HTML without the characters that it does not need, such as line breaks between tags), in the
# namespace `lv::embedded::NAME`. It has the name of the file, with `_` for other characters than letters and digits:
# `page.html` becomes `page_html`. The source is made again when a file changes.
function(lvdata_embed target name)
    set(base "${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}")
    list(TRANSFORM ARGN REPLACE "^([^/])" "${CMAKE_CURRENT_SOURCE_DIR}/\\1" OUTPUT_VARIABLE files)
    add_custom_command(
        OUTPUT "${base}.h" "${base}.cpp"
        COMMAND
            "${CMAKE_COMMAND}" -D "name=${name}" -D "base=${base}" -D "files=${files}" -P
            "${_lvdata_embed_script}"
        DEPENDS ${files} "${_lvdata_embed_script}"
        COMMENT "Embedding the files of ${name}"
        VERBATIM
    )
    target_sources(${target} PRIVATE "${base}.h" "${base}.cpp")
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
endfunction()
set(_lvdata_embed_script "${CMAKE_CURRENT_LIST_DIR}/lvdata_embed_files.cmake")
