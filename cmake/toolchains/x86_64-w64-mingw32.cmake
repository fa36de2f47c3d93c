# Windows on x86-64, built by mingw-w64 and run by Wine. Libraries and headers come from the folder that
# scripts/windows-dependencies fills, and from nowhere else.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix) # not the -win32 one, which has no std::thread
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_INTERPROCEDURAL_OPTIMIZATION OFF) # GCC 12 fails there: "internal compiler error: in binds_to_current_def_p"

get_filename_component(_build_root "${CMAKE_CURRENT_LIST_DIR}/../../build" ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH "${_build_root}/windows-dependencies" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${_build_root}/windows-dependencies/lib/pkgconfig")

# Wine with a folder of its own for what it keeps, without its messages, and with the compiler's DLLs in its PATH.
file(GLOB _runtime_folders /usr/lib/gcc/x86_64-w64-mingw32/*-posix)
list(JOIN _runtime_folders "\;" _runtime_path)
set(CMAKE_CROSSCOMPILING_EMULATOR
    env
    "WINEPREFIX=${_build_root}/wine"
    WINEDEBUG=-all
    "WINEPATH=${_runtime_path}\;/usr/x86_64-w64-mingw32/lib"
    wine
)
