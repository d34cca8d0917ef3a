# CTest includes this into the tests of the build `x64`. With a list of other builds in its environment, as the test
# presets `short` and `all` set it, one run takes in the tests of those too.
foreach(build $ENV{LINDREL_OTHER_BUILDS})
  if(NOT EXISTS ${CMAKE_CURRENT_LIST_DIR}/../build/${build}/CTestTestfile.cmake)
    message(FATAL_ERROR "There is no build ${build}")
  endif()
  subdirs(../${build})
endforeach()
