# With TAVRIN_SYNTAX_ONLY a build reads every source for its warnings and makes no code: what stands in for objects,
# libraries and programs is empty. It takes a quarter of the time, and nothing of it can be run.
option(TAVRIN_SYNTAX_ONLY "Look for warnings alone" OFF)
if(TAVRIN_SYNTAX_ONLY)
  set(made "${CMAKE_COMMAND} -E touch")
  set(CMAKE_CXX_COMPILE_OBJECT
      "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -fsyntax-only -o <OBJECT> <SOURCE>" "${made} <OBJECT>")
  set(CMAKE_CXX_CREATE_STATIC_LIBRARY "${made} <TARGET>")
  set(CMAKE_CXX_LINK_EXECUTABLE "${made} <TARGET>")
endif()
