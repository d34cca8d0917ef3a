# The same sources give the same program, bit for bit, wherever and whenever they are built: it contains no source path
# and no time.
if(MINGW)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
  add_link_options(-Wl,--no-insert-timestamp)
endif()
