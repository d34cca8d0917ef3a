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
  set(portable ${LINDREL_SOURCES})
  get_target_property(core_sources lindrel_core SOURCES)
  add_custom_target(tidy COMMAND ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR} ${core_sources})
endif()
