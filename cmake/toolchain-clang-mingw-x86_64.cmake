# 64-bit Windows by Clang, with the headers and libraries of MinGW's posix-thread GCC and LLVM's linker.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(TAVRIN_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${TAVRIN_MINGW})
set(CMAKE_CXX_COMPILER_TARGET ${TAVRIN_MINGW})
set(CMAKE_RC_COMPILER ${TAVRIN_MINGW}-windres)

# Clang does not find them by itself where Debian keeps two kinds of threads side by side.
file(GLOB versions LIST_DIRECTORIES true /usr/lib/gcc/${TAVRIN_MINGW}/*-posix)
list(SORT versions COMPARE NATURAL)
list(POP_BACK versions gcc)
set(CMAKE_CXX_FLAGS_INIT
  "-isystem ${gcc}/include/c++ -isystem ${gcc}/include/c++/${TAVRIN_MINGW} -isystem ${gcc}/include/c++/backward")

set(CMAKE_FIND_ROOT_PATH /usr/${TAVRIN_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -fuse-ld=lld -L${gcc} -lpthread")
  set(CMAKE_${kind}_LINKER_FLAGS_RELEASE_INIT "-s")
  # An inline function of <typeinfo> is in GCC's library once more; unoptimised code calls it.
  set(CMAKE_${kind}_LINKER_FLAGS_DEBUG_INIT "-Wl,--allow-multiple-definition")
endforeach()
