# The target lvdata_reference: what Doxygen reads in the public headers, as XML. A member without a comment is an error.
include_guard(GLOBAL)
find_program(LVDATA_DOXYGEN doxygen REQUIRED)
get_directory_property(headers DIRECTORY "${PROJECT_SOURCE_DIR}/lvdata" DEFINITION LVDATA_PUBLIC_HEADERS)
list(REMOVE_ITEM headers export.h lvdata.h) # the macro, and a list of headers
list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/lvdata/")
list(APPEND headers "${PROJECT_BINARY_DIR}/include/lvdata/version.h")

set(LVDATA_DOXYGEN_OUTPUT "${PROJECT_BINARY_DIR}/reference")
set(LVDATA_REFERENCE_XML "${LVDATA_DOXYGEN_OUTPUT}/xml")
list(TRANSFORM headers REPLACE "(.+)" "\"\\1\"" OUTPUT_VARIABLE LVDATA_DOXYGEN_INPUT)
list(JOIN LVDATA_DOXYGEN_INPUT " \\\n    " LVDATA_DOXYGEN_INPUT)
file(MAKE_DIRECTORY "${LVDATA_DOXYGEN_OUTPUT}")
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${LVDATA_DOXYGEN_OUTPUT}/Doxyfile" @ONLY)

add_custom_command(
    OUTPUT "${LVDATA_REFERENCE_XML}/index.xml"
    COMMAND "${LVDATA_DOXYGEN}" "${LVDATA_DOXYGEN_OUTPUT}/Doxyfile"
    DEPENDS ${headers} "${LVDATA_DOXYGEN_OUTPUT}/Doxyfile"
    COMMENT "Reading the public headers"
    VERBATIM
)
add_custom_target(lvdata_reference DEPENDS "${LVDATA_REFERENCE_XML}/index.xml")
