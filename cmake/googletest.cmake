# GTest::gtest, GTest::gtest_main and GTest::gmock: natively Debian's libraries, for Windows compiled from the
# sources that Debian's package googletest installs.
if(NOT WIN32)
  find_package(GTest REQUIRED)
  return()
endif()

set(INSTALL_GTEST OFF CACHE INTERNAL "")
set(gtest_disable_pthreads ON CACHE INTERNAL "")
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library gtest gtest_main gmock gmock_main)
  # Nobody waits for these: they are built quickly rather than well.
  target_compile_options(${library} PRIVATE -w -O0)
endforeach()
