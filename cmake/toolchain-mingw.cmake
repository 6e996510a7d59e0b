# What both Windows targets share. The posix-thread compiler is used because std::mutex and std::call_once need
# it; everything is linked statically, so that what comes out depends on Windows alone.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${TAVRIN_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TAVRIN_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${TAVRIN_MINGW}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${TAVRIN_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
  set(CMAKE_${kind}_LINKER_FLAGS_RELEASE_INIT "-s")
endforeach()
