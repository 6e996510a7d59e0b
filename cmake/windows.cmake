# Settings of the Windows targets: wide text, lean headers and Windows 7 as the oldest system. Programs and the
# DLL lie side by side in the build folder's root, where the host finds the DLL.
if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  enable_language(RC)
  if(MINGW)
    # Small rather than quick, and nothing that nobody calls: a host loads the DLL while its user waits. What is
    # quick where it matters asks for it with tavrin_optimize_for_speed.
    add_compile_options("$<$<CONFIG:Release>:-Os;-ffunction-sections;-fdata-sections>")
    add_link_options("$<$<CONFIG:Release>:-Wl,--gc-sections>")
    # Lines and functions for whoever reads a crash report; the packages have them apart from the DLL. They name files
    # by their place in the clone, wherever that lies.
    add_compile_options("$<$<CONFIG:Release>:-g1;-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")
    # No time of building goes in: one commit always gives the same bytes.
    add_link_options(-Wl,--no-insert-timestamp)
  endif()
endif()

# tavrin_optimize_for_speed(<source>...): sources of the current folder whose loops run over pixels, cells or keys.
function(tavrin_optimize_for_speed)
  if(MINGW AND CMAKE_BUILD_TYPE STREQUAL Release)
    set_source_files_properties(${ARGN} PROPERTIES
      COMPILE_OPTIONS -O2
      SKIP_PRECOMPILE_HEADERS ON)  # which are compiled with -Os
  endif()
endfunction()
