# 32-bit x86 whose x87 computes with more bits than a double has.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(triplet i686-linux-gnu)
set(emulator qemu-i386)
set(CMAKE_CXX_FLAGS_INIT "-mfpmath=387 -mno-sse")
include(${CMAKE_CURRENT_LIST_DIR}/linux-gnu.cmake)
