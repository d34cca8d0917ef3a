# Warnings are errors by default; switch that off for a newer compiler that has more of them. Test libraries and system
# headers are exempt.
option(LINDREL_WARNINGS_ARE_ERRORS "Stop at a warning" ON)
add_library(lindrel_warnings INTERFACE)
target_compile_options(lindrel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wnull-dereference
  $<$<BOOL:${LINDREL_WARNINGS_ARE_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 reports overlaps in std::string's operator+ where there are none.
  target_compile_options(lindrel_warnings INTERFACE -Wduplicated-cond -Wlogical-op -Wno-restrict)
endif()
if(MINGW)
  # Win32 needs casts of function and handle types. With a precompiled header GCC 12 takes wchar.h for one of ours
  # and warns, wrongly, that its wmemcpy reads and writes out of bounds.
  target_compile_options(lindrel_warnings INTERFACE -Wno-old-style-cast -Wno-array-bounds -Wno-stringop-overread)
endif()
