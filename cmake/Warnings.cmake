# Warnings are errors. Test libraries and the system's own headers are not held to it.
add_library(lindrel_warnings INTERFACE)
target_compile_options(lindrel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wnull-dereference -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps in std::string's own operator+ that are not there.
  target_compile_options(lindrel_warnings INTERFACE -Wduplicated-cond -Wlogical-op -Wno-restrict)
endif()
if(MINGW)
  # One exe that runs on every Windows; casts of function and handle types are the system's own habit.
  target_link_options(lindrel_warnings INTERFACE -static)
  target_compile_options(lindrel_warnings INTERFACE -Wno-old-style-cast)
endif()
if(LINDREL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
