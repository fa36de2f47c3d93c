# What makes an installed lvdata findable: the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

set(_lvdata_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/lvdata")

install(
    EXPORT lvdataTargets
    NAMESPACE lvdata::
    DESTINATION ${_lvdata_package_dir}
    COMPONENT lvdata_Development
)

configure_package_config_file(
    cmake/lvdataConfig.cmake.in "${PROJECT_BINARY_DIR}/lvdataConfig.cmake"
    INSTALL_DESTINATION ${_lvdata_package_dir}
    NO_SET_AND_CHECK_MACRO
)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/lvdataConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion # before 1.0 a new minor version may change the interface
)
install(
    FILES "${PROJECT_BINARY_DIR}/lvdataConfig.cmake" "${PROJECT_BINARY_DIR}/lvdataConfigVersion.cmake"
    DESTINATION ${_lvdata_package_dir}
    COMPONENT lvdata_Development
)

# Only a static library hands its needs on to the programs that use it.
if(BUILD_SHARED_LIBS)
    set(_lvdata_pc_requires "")
    set(_lvdata_pc_cflags "")
else()
    set(_lvdata_pc_requires "Requires.private: tinyxml2\n")
    set(_lvdata_pc_cflags " -DLVDATA_STATIC")
    install(
        FILES cmake/lvdataTinyXML2.cmake
        DESTINATION ${_lvdata_package_dir}
        COMPONENT lvdata_Development
    )
endif()

# The prefix is given relative to the file's own place, so that the installed tree can be moved.
set(_lvdata_pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH _lvdata_pc_to_prefix "/${_lvdata_pc_dir}" "/.")
configure_file(cmake/lvdata.pc.in "${PROJECT_BINARY_DIR}/lvdata.pc" @ONLY)
install(
    FILES "${PROJECT_BINARY_DIR}/lvdata.pc"
    DESTINATION ${_lvdata_pc_dir}
    COMPONENT lvdata_Development
)
