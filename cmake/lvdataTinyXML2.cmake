# Finds tinyxml2 and makes it known as tinyxml2::tinyxml2: by its own CMake package, else by pkg-config. Installed beside
# lvdataConfig.cmake too, where a static lvdata needs it; the caller reports a missing tinyxml2 in its own way.
if(NOT TARGET tinyxml2::tinyxml2)
    find_package(tinyxml2 CONFIG QUIET)
endif()

if(NOT TARGET tinyxml2::tinyxml2)
    find_package(PkgConfig QUIET)
    if(PKG_CONFIG_FOUND)
        pkg_check_modules(LVDATA_TINYXML2 QUIET IMPORTED_TARGET tinyxml2)
    endif()
    if(TARGET PkgConfig::LVDATA_TINYXML2)
        add_library(tinyxml2::tinyxml2 INTERFACE IMPORTED)
        target_link_libraries(tinyxml2::tinyxml2 INTERFACE PkgConfig::LVDATA_TINYXML2)
    endif()
endif()
