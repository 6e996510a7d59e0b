# With TAVRIN_PRECOMPILE the headers of the standard library and of the platform are read once for a build and not
# once for each source. It hides an include that a source forgets, so the builds with clang do without.
option(TAVRIN_PRECOMPILE "Precompile the headers that are not ours" OFF)

# A library that holds nothing but those headers, precompiled for others.
function(tavrin_add_precompiled name)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_precompile_headers(${name} PRIVATE <algorithm> <array> <charconv> <cmath> <cstdint> <functional> <map> <memory>
                                            <optional> <span> <string> <string_view> <utility> <vector> ${ARGN})
endfunction()

if(TAVRIN_PRECOMPILE)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)  # without it ccache keeps nothing
  endif()
  tavrin_add_precompiled(tavrin_precompiled)
  if(WIN32)
    tavrin_add_precompiled(tavrin_precompiled_windows <windows.h> <oleauto.h> <ocidl.h> <commctrl.h>)
  endif()
endif()

# What tests include beside that. It is made with the options of the folder that calls this.
function(tavrin_add_precompiled_tests)
  if(TAVRIN_PRECOMPILE)
    tavrin_add_precompiled(tavrin_precompiled_tests <gmock/gmock.h> <gtest/gtest.h>)
    target_link_libraries(tavrin_precompiled_tests PRIVATE GTest::gtest_main GTest::gmock)
  endif()
endfunction()

# tavrin_precompile(<folder> <precompiled>): every library and program of the folder, and of those below, uses them.
function(tavrin_precompile folder precompiled)
  if(NOT TARGET ${precompiled})
    return()
  endif()
  tavrin_collect_targets(targets ${folder})
  foreach(target ${targets})
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL INTERFACE_LIBRARY AND NOT target STREQUAL precompiled)
      target_precompile_headers(${target} REUSE_FROM ${precompiled})
    endif()
  endforeach()
endfunction()
