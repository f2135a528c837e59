# Cross build for 32-bit Windows (x86) with mingw-w64; programs run through
# Wine's 32-bit side.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(TOOLCHAIN_PREFIX i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
