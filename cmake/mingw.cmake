# Cross compilation for Windows with mingw-w64. LINDREL_WINDOWS_CPU is the target: x86_64 or i686.
if(NOT LINDREL_WINDOWS_CPU MATCHES "^(x86_64|i686)$")
  message(FATAL_ERROR "LINDREL_WINDOWS_CPU must be x86_64 or i686, not \"${LINDREL_WINDOWS_CPU}\"")
endif()
# Compiler checks are projects of their own, which read this file too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LINDREL_WINDOWS_CPU)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${LINDREL_WINDOWS_CPU})
set(target ${LINDREL_WINDOWS_CPU}-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# A single exe that needs none of the compiler's DLLs.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tests/wine-run.sh)
