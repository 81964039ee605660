# Cross-compiling for Windows with Debian's mingw-w64. VARNEL_WINDOWS_CPU: x86_64 or i686.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VARNEL_WINDOWS_CPU)
set(CMAKE_SYSTEM_PROCESSOR "${VARNEL_WINDOWS_CPU}")
set(triple "${VARNEL_WINDOWS_CPU}-w64-mingw32")
set(CMAKE_C_COMPILER "${triple}-gcc-posix")
set(CMAKE_CXX_COMPILER "${triple}-g++-posix")
set(CMAKE_RC_COMPILER "${triple}-windres")
if(VARNEL_WINDOWS_CPU STREQUAL "i686")
  # Doubles of 64 bits as everywhere else, and callers that align the stack to 4 bytes only.
  set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
  set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
endif()
# The libraries that scripts/windows-dependencies builds stand before the compiler's own.
set(CMAKE_FIND_ROOT_PATH
  "${CMAKE_CURRENT_LIST_DIR}/../build/windows-dependencies/${VARNEL_WINDOWS_CPU}" "/usr/${triple}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
