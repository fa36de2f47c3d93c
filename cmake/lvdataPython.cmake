# What the Python module needs, where it is installed, and how it finds the library there.
include_guard()

if(NOT LVDATA_BUILD_ANALYSIS)
    message(FATAL_ERROR "LVDATA_BUILD_PYTHON needs lvdata::analysis: set LVDATA_BUILD_ANALYSIS=ON")
endif()
find_package(Python 3.11 QUIET COMPONENTS Interpreter Development.Module)
if(NOT Python_Interpreter_FOUND)
    message(FATAL_ERROR "LVDATA_BUILD_PYTHON needs Python 3.11 or newer: install python3, set Python_EXECUTABLE, or set LVDATA_BUILD_PYTHON=OFF")
endif()
if(NOT Python_Development.Module_FOUND)
    message(
        FATAL_ERROR
        "LVDATA_BUILD_PYTHON needs the headers of ${Python_EXECUTABLE} (version ${Python_VERSION}): install python3-dev, "
        "set Python_EXECUTABLE to a Python that has them, or set LVDATA_BUILD_PYTHON=OFF"
    )
endif()
find_package(pybind11 2.10 CONFIG QUIET)
if(NOT pybind11_FOUND)
    message(FATAL_ERROR "LVDATA_BUILD_PYTHON needs pybind11 2.10 or newer: install pybind11-dev, set pybind11_DIR, or set LVDATA_BUILD_PYTHON=OFF")
endif()

# Below its prefix, Python itself searches this folder.
execute_process(
    COMMAND "${Python_EXECUTABLE}" -c "import sysconfig; print(sysconfig.get_path('platlib', 'posix_prefix', {'platbase': ''})[1:])"
    OUTPUT_VARIABLE _lvdata_platlib
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY
)
set(LVDATA_PYTHON_DIR "${_lvdata_platlib}" CACHE STRING "Folder of the Python module, below the installation prefix")
if(IS_ABSOLUTE "${LVDATA_PYTHON_DIR}")
    message(FATAL_ERROR "LVDATA_PYTHON_DIR must be a folder below the installation prefix, such as ${_lvdata_platlib}")
endif()

# The installed module finds a shared library relative to its own place, so that the installed tree can be moved.
function(lvdata_set_python_rpath target)
    if(BUILD_SHARED_LIBS)
        cmake_path(ABSOLUTE_PATH LVDATA_PYTHON_DIR BASE_DIRECTORY "/prefix" OUTPUT_VARIABLE python_dir)
        cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_LIBDIR BASE_DIRECTORY "/prefix" OUTPUT_VARIABLE lib_dir)
        cmake_path(RELATIVE_PATH lib_dir BASE_DIRECTORY "${python_dir}/lvdata" OUTPUT_VARIABLE module_to_lib)
        set_target_properties(
            ${target} PROPERTIES
            INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>/${module_to_lib}"
        )
    endif()
endfunction()

# The module shows nothing but where Python begins: importing it gives no symbols to others, and is quicker.
function(lvdata_hide_all_but_init target)
    if(UNIX AND NOT APPLE)
        set(map "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/python_module.map")
        target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
    endif()
endfunction()
