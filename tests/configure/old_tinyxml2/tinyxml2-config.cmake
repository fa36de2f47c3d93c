# The CMake package of a tinyxml2 that is too old for lvdata.
add_library(tinyxml2::tinyxml2 INTERFACE IMPORTED)
