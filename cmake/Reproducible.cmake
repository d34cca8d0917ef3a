# The same sources give the same program, bit for bit, whenever and in whichever folder they are built: no path of a
# source and no time in it.
if(MINGW)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
  add_link_options(-Wl,--no-insert-timestamp)
endif()
