# How every target of this project is compiled.
include_guard()

# One flag a line.
set(_lvdata_warning_file "${CMAKE_CURRENT_LIST_DIR}/warning-flags.txt")
file(STRINGS "${_lvdata_warning_file}" _lvdata_warning_flags)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${_lvdata_warning_file}")

set(_lvdata_is_gnu_like "$<CXX_COMPILER_ID:GNU,Clang,AppleClang>")

function(_lvdata_set_warnings target)
    target_compile_options(${target} PRIVATE "$<${_lvdata_is_gnu_like}:${_lvdata_warning_flags}>")
    if(LVDATA_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE "$<${_lvdata_is_gnu_like}:-Werror>")
    endif()
endfunction()

# Standard C++, UTF-8 sources, and products and sums rounded as the standard says.
function(_lvdata_set_msvc_options target)
    target_compile_options(
        ${target} PRIVATE "$<$<CXX_COMPILER_ID:MSVC>:/W4;/permissive-;/utf-8;/Zc:__cplusplus;/fp:precise>"
    )
    target_compile_definitions(${target} PRIVATE "$<$<CXX_COMPILER_ID:MSVC>:NOMINMAX>") # no macros min and max
endfunction()

function(_lvdata_set_instrumentation target)
    if(LVDATA_SANITIZE)
        list(JOIN LVDATA_SANITIZE "," sanitizers)
        target_compile_options(
            ${target} PRIVATE -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer
        )
        target_link_options(${target} PRIVATE -fsanitize=${sanitizers})
    endif()
    if(LVDATA_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# C++17, warnings, sanitizers or coverage: for the library, the tool, the examples and the tests alike.
function(lvdata_configure_target target)
    set_target_properties(${target} PROPERTIES CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF)
    _lvdata_set_warnings(${target})
    _lvdata_set_msvc_options(${target})
    _lvdata_set_instrumentation(${target})
    if(LVDATA_OPTIMISE_LIBRARY_ONLY AND NOT target MATCHES "^lvdata(_objects)?$")
        target_compile_options(${target} PRIVATE $<${_lvdata_is_gnu_like}:-O0>)
    endif()
endfunction()

set(_lvdata_visible "${CMAKE_CURRENT_LIST_DIR}/lvdata_visible.map")

# A shared library of this target shows only what its sources mark as visible, and no templates of the standard library.
function(lvdata_hide_symbols target)
    set_target_properties(
        ${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
    )
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY AND NOT APPLE)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${_lvdata_visible}")
    endif()
endfunction()

include(CheckIPOSupported)
check_ipo_supported(RESULT _lvdata_ipo_supported OUTPUT _lvdata_ipo_output LANGUAGES CXX)

# Interprocedural optimisation where the toolchain has it, in the optimised configurations. Who builds may say for all
# targets whether they want it, by CMAKE_INTERPROCEDURAL_OPTIMIZATION.
function(lvdata_optimise_across_files target)
    if(NOT _lvdata_ipo_supported OR DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION)
        return()
    endif()
    foreach(configuration IN ITEMS RELEASE RELWITHDEBINFO MINSIZEREL)
        set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_${configuration} ON)
    endforeach()
endfunction()
