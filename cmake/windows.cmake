# Settings of the Windows targets: wide text, lean headers and Windows 7 as the oldest system. Programs and the
# DLL lie side by side in the build folder's root, where the host finds the DLL.
if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  enable_language(RC)
  if(MINGW)
    # No time of building goes in: one commit always gives the same bytes.
    add_link_options(-Wl,--no-insert-timestamp)
  endif()
endif()
