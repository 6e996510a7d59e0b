# One strictness for every compiler: all warnings, as errors.
if(MSVC)
  add_compile_options(/W4 /WX /utf-8 /permissive- /EHsc /wd4068)  # 4068: other compilers' pragmas
  return()
endif()
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
                    -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-Wreserved-identifier;-Wzero-as-null-pointer-constant>")
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 takes std::string's own operator+ for an overlapping copy.
  add_compile_options(-Wno-restrict)
  if(WIN32)
    # It also takes the thread block, which Windows keeps at a segment's start, for an access through null.
    add_compile_options(--param=min-pagesize=0)
  endif()
endif()
if(TAVRIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
