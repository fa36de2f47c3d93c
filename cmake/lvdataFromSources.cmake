# For presets whose compiler cannot use the system's libraries: GoogleTest, and tinyxml2 where LVDATA_TINYXML2_SOURCES is
# set, become part of the build, from their sources. The presets name this file in CMAKE_PROJECT_lvdata_INCLUDE.
include(FetchContent)

set(INSTALL_GTEST OFF)
FetchContent_Declare(GTest SOURCE_DIR /usr/src/googletest SYSTEM OVERRIDE_FIND_PACKAGE)

if(LVDATA_TINYXML2_SOURCES)
    set(tinyxml2_BUILD_TESTING OFF)
    FetchContent_Declare(tinyxml2 SOURCE_DIR "${LVDATA_TINYXML2_SOURCES}" SYSTEM OVERRIDE_FIND_PACKAGE)
endif()
