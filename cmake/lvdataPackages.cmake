# Packages by cpack: an archive (-G TGZ) or a Debian package (-G DEB) of each component, with the paths of
# CMAKE_INSTALL_PREFIX. Debian's own way of packing is in debian/.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_CONTACT "lvdata developers <lvdata@example.invalid>")
set(CPACK_PACKAGE_VENDOR "lvdata developers")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_SET_DESTDIR ON) # so that installed files may name the prefix
set(CPACK_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lvdata")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

# _lvdata_package(COMPONENT PACKAGE SECTION DESCRIPTION): what a component is called as a package.
function(_lvdata_package component package section description)
    string(TOUPPER lvdata_${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_COMPONENT_${upper}_DESCRIPTION "${description}" PARENT_SCOPE)
    if(BUILD_SHARED_LIBS AND component MATCHES "Development|Tool|Python")
        set(CPACK_COMPONENT_${upper}_DEPENDS lvdata_Runtime PARENT_SCOPE)
    endif()
endfunction()
_lvdata_package(Runtime liblvdata${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} libs "The shared library lvdata.")
_lvdata_package(Development liblvdata-dev libdevel "What programs are built with that use the library lvdata.")
_lvdata_package(Tool lvdata utils "The command lvdata, with its manual page and shell completions.")
_lvdata_package(Python python3-lvdata python "The Python module lvdata.")
_lvdata_package(Documentation liblvdata-doc doc "The documentation of the library, the command and the Python module.")

include(CPack)
