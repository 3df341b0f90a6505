# 32-bit Windows, cross-built with mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(VORN_TARGET_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)

# Values must not depend on the x87's extra precision, and hosts built by other compilers align the
# stack to 4 bytes only.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mincoming-stack-boundary=2")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mincoming-stack-boundary=2")
