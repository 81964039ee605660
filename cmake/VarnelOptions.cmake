# What every target of the project is compiled with.
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Assertions are part of the library's behaviour: no build type may define NDEBUG.
set(CMAKE_CXX_FLAGS_RELEASE "-O3 -g1")
set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g")

find_program(VARNEL_CCACHE ccache)
if(VARNEL_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${VARNEL_CCACHE})
endif()

add_library(varnel_options INTERFACE)
target_include_directories(varnel_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_definitions(varnel_options INTERFACE _GLIBCXX_ASSERTIONS EGL_NO_X11)
if(WIN32)
  # The published headers name no windows.h types and import nothing; the oldest Windows is 7.
  target_compile_definitions(varnel_options INTERFACE
    EGL_NO_PLATFORM_SPECIFIC_TYPES KHRONOS_STATIC _WIN32_WINNT=0x0601 __USE_MINGW_ANSI_STDIO=1)
endif()
# Floats are widened, computed in double and rounded at each store; nothing may contract or reorder.
target_compile_options(varnel_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -ffp-contract=off)

set(VARNEL_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize=")
if(VARNEL_SANITIZE)
  target_compile_options(varnel_options INTERFACE
    -fsanitize=${VARNEL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(varnel_options INTERFACE -fsanitize=${VARNEL_SANITIZE})
endif()

option(VARNEL_COVERAGE "Measure test coverage" OFF)
if(VARNEL_COVERAGE)
  target_compile_options(varnel_options INTERFACE --coverage)
  target_link_options(varnel_options INTERFACE --coverage)
endif()

option(VARNEL_SKIN_DEBUG "Write the matrices of skinned meshes to the standard error stream" OFF)
if(VARNEL_SKIN_DEBUG)
  target_compile_definitions(varnel_options INTERFACE VARNEL_SKIN_DEBUG)
endif()
