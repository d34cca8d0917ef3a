# CTest includes this into the tests of the build `native`. With LINDREL_ALL_BUILDS in its environment, as the test
# preset `all` sets it, one run takes in the tests of the other builds.
if(DEFINED ENV{LINDREL_ALL_BUILDS})
  foreach(build sanitize x64 x86 fuzz)
    if(NOT EXISTS ${CMAKE_CURRENT_LIST_DIR}/../build/${build}/CTestTestfile.cmake)
      message(FATAL_ERROR "There is no build ${build}")
    endif()
    subdirs(../${build})
  endforeach()
endif()
