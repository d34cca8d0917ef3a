# Warnings are errors, unless the compiler is newer than the sources and may know more of them. Test libraries and the system's own headers are not held to it.
option(LINDREL_WARNINGS_ARE_ERRORS "Stop at a warning" ON)
add_library(lindrel_warnings INTERFACE)
target_compile_options(lindrel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wnull-dereference
  $<$<BOOL:${LINDREL_WARNINGS_ARE_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps in std::string's own operator+ that are not there.
  target_compile_options(lindrel_warnings INTERFACE -Wduplicated-cond -Wlogical-op -Wno-restrict)
endif()
if(MINGW)
  # Casts of function and handle types are the system's own habit. With a precompiled header GCC 12 takes wchar.h
  # for one of ours, and warns that its wmemcpy reads and writes too far, which it does not.
  target_compile_options(lindrel_warnings INTERFACE -Wno-old-style-cast -Wno-array-bounds -Wno-stringop-overread)
endif()
