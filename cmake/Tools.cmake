# Targets that look after the sources: `format` rewrites them, `format-check` and `tidy` only complain.
find_program(CLANG_FORMAT clang-format)
find_program(CLANG_TIDY clang-tidy)
file(GLOB_RECURSE LINDREL_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/app/*.[ch]* ${CMAKE_SOURCE_DIR}/book/*.[ch]* ${CMAKE_SOURCE_DIR}/controls/*.[ch]*
  ${CMAKE_SOURCE_DIR}/edit/*.[ch]* ${CMAKE_SOURCE_DIR}/find/*.[ch]* ${CMAKE_SOURCE_DIR}/export/*.[ch]*
  ${CMAKE_SOURCE_DIR}/import/*.[ch]* ${CMAKE_SOURCE_DIR}/tray/*.[ch]* ${CMAKE_SOURCE_DIR}/help/*.[ch]*
  ${CMAKE_SOURCE_DIR}/tests/*.[ch]* ${CMAKE_SOURCE_DIR}/bench/*.[ch]* ${CMAKE_SOURCE_DIR}/fuzz/*.[ch]*)
list(FILTER LINDREL_SOURCES INCLUDE REGEX "\\.(cpp|h)$")
if(CLANG_FORMAT)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${LINDREL_SOURCES})
  add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run --Werror ${LINDREL_SOURCES})
endif()
if(CLANG_TIDY AND NOT WIN32)
  get_target_property(core_sources lindrel_core SOURCES)
  # The compile commands are GCC's.
  set(tidy ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR} --extra-arg=-Wno-unknown-warning-option ${core_sources})
  add_custom_target(tidy COMMAND ${tidy})
endif()

# Kept in good order with every run of the tests, once.
if(BUILD_TESTING AND NOT WIN32 AND NOT LINDREL_SANITIZE)
  add_test(NAME sources.format COMMAND ${CLANG_FORMAT} --dry-run --Werror ${LINDREL_SOURCES})
  add_test(NAME sources.tidy COMMAND ${tidy})
  add_test(NAME sources.rules COMMAND ${CMAKE_SOURCE_DIR}/tests/check-sources.sh)
  set_tests_properties(sources.format sources.tidy sources.rules PROPERTIES TIMEOUT 600)
endif()
