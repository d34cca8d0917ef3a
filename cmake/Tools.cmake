# Targets for the sources: `format` rewrites them, `format-check` and `tidy` only report. `tidy` checks the portable
# sources in a native build and those of the windows in a Windows build.
find_program(CLANG_FORMAT clang-format)
find_program(CLANG_TIDY clang-tidy)
foreach(folder src tests bench fuzz)
  list(APPEND patterns ${CMAKE_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/${folder}/*.h)
endforeach()
file(GLOB_RECURSE LINDREL_SOURCES CONFIGURE_DEPENDS ${patterns})
add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${LINDREL_SOURCES} COMMENT "Formatting the sources" VERBATIM)
add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run --Werror ${LINDREL_SOURCES}
  COMMENT "Checking the format of the sources" VERBATIM)

# clang-tidy cannot use the header that GCC has precompiled.
set(tidy_commands ${CMAKE_BINARY_DIR}/tidy/compile_commands.json)
add_custom_command(OUTPUT ${tidy_commands} DEPENDS ${CMAKE_BINARY_DIR}/compile_commands.json
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_BINARY_DIR}/compile_commands.json ${tidy_commands}
  COMMAND sed -i -E "s/-Winvalid-pch -include [^ ]+//" ${tidy_commands}
  VERBATIM)
add_custom_target(tidy_commands ALL DEPENDS ${tidy_commands})
set(tidy ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR}/tidy --extra-arg=-Wno-unknown-warning-option)
if(WIN32)
  # Win32 is full of what these checks dislike: handles are pointers, macros hide casts, texts are arrays; and a
  # function that changes a control should not be const.
  set(tidy_name sources.tidy.windows)
  get_target_property(tidy_sources lindrel_ui SOURCES)
  set(unwanted -misc-misplaced-const -modernize-avoid-c-arrays -modernize-use-auto
    -readability-make-member-function-const)
  list(JOIN unwanted "," without)
  list(APPEND tidy --checks=${without} --extra-arg=--target=${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
  foreach(folder ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
    # Clang has its own versions of GCC's internal headers.
    if(NOT folder MATCHES "/lib/gcc/.*/include(-fixed)?$")
      list(APPEND tidy --extra-arg=-isystem${folder})
    endif()
  endforeach()
else()
  set(tidy_name sources.tidy)
  get_target_property(tidy_sources lindrel_core SOURCES)
endif()
add_custom_target(tidy COMMAND ${tidy} ${tidy_sources} COMMENT "Checking the sources" VERBATIM)
add_dependencies(tidy tidy_commands)

# Once in each run of the tests.
if(BUILD_TESTING AND WIN32)
  add_test(NAME sources.format COMMAND ${CLANG_FORMAT} --dry-run --Werror ${LINDREL_SOURCES})
  add_test(NAME sources.rules COMMAND ${CMAKE_SOURCE_DIR}/tests/check-sources.py)
  add_test(NAME pages.links COMMAND ${CMAKE_SOURCE_DIR}/tests/check-pages.py)
endif()
# One test for each folder, so that they run in parallel.
if(BUILD_TESTING AND NOT LINDREL_SANITIZE)
  foreach(source ${tidy_sources})
    cmake_path(GET source PARENT_PATH folder)
    cmake_path(GET folder FILENAME folder)
    list(APPEND tidy_folders ${folder})
    list(APPEND ${folder}_sources ${source})
  endforeach()
  list(REMOVE_DUPLICATES tidy_folders)
  foreach(folder ${tidy_folders})
    add_test(NAME ${tidy_name}.${folder} COMMAND ${tidy} ${${folder}_sources})
    set_tests_properties(${tidy_name}.${folder} PROPERTIES TIMEOUT 1200 LABELS long)
  endforeach()
endif()
