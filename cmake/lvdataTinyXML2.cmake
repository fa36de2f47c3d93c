# Finds tinyxml2 and makes it known as tinyxml2::tinyxml2: by its own CMake package, else by pkg-config. Installed beside
# lvdataConfig.cmake too, where a static lvdata needs it. Where there is none that can be used, LVDATA_TINYXML2_PROBLEM
# says so in a sentence; the caller reports it in its own way.

# The first version whose XMLPrinter lets a derived class do the writing (`Write` and `Putc` are virtual).
set(LVDATA_TINYXML2_MINIMUM 8.1)
set(LVDATA_TINYXML2_PROBLEM "")

# Its CMake package is not asked for a version: it would call every newer major one incompatible.
if(NOT TARGET tinyxml2::tinyxml2)
    find_package(tinyxml2 CONFIG QUIET)
    set(_lvdata_tinyxml2_found "${tinyxml2_VERSION}")
endif()

if(NOT TARGET tinyxml2::tinyxml2)
    find_package(PkgConfig QUIET)
    if(PKG_CONFIG_FOUND)
        pkg_check_modules(LVDATA_TINYXML2 QUIET IMPORTED_TARGET tinyxml2>=${LVDATA_TINYXML2_MINIMUM})
        pkg_check_modules(LVDATA_ANY_TINYXML2 QUIET tinyxml2)
        set(_lvdata_tinyxml2_found "${LVDATA_ANY_TINYXML2_VERSION}")
    endif()
    if(TARGET PkgConfig::LVDATA_TINYXML2)
        add_library(tinyxml2::tinyxml2 INTERFACE IMPORTED)
        target_link_libraries(tinyxml2::tinyxml2 INTERFACE PkgConfig::LVDATA_TINYXML2)
    endif()
endif()

# A target that the project around this one made has no version here; the compiler checks it (lvdata/xml/detail/handle.cpp).
if(_lvdata_tinyxml2_found AND _lvdata_tinyxml2_found VERSION_LESS LVDATA_TINYXML2_MINIMUM)
    set(LVDATA_TINYXML2_PROBLEM
        "tinyxml2 ${_lvdata_tinyxml2_found} was found, but lvdata needs version ${LVDATA_TINYXML2_MINIMUM} or newer"
    )
elseif(NOT TARGET tinyxml2::tinyxml2)
    set(LVDATA_TINYXML2_PROBLEM
        "lvdata needs tinyxml2 ${LVDATA_TINYXML2_MINIMUM} or newer, which was found neither as a CMake package nor by pkg-config"
    )
endif()
unset(_lvdata_tinyxml2_found)
