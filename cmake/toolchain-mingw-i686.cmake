# 32-bit Windows. SSE arithmetic keeps sums identical to the 64-bit build; the stack is realigned because an
# older host may call in with only four bytes of alignment.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(TAVRIN_MINGW i686-w64-mingw32)
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)
foreach(kind EXE SHARED MODULE)
  # A .def file lists plain names; __stdcall decorates them here.
  string(APPEND CMAKE_${kind}_LINKER_FLAGS_INIT " -Wl,--enable-stdcall-fixup")
endforeach()
