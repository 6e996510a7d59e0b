# Compiles through ccache where it is installed; its cache stays inside the clone. Paths below the clone count as
# relative ones, so that another clone of the same sources is served from the same cache. What a source was made from
# is taken from the compiler's own list, which saves running the preprocessor first; nothing of ours asks for the time.
find_program(TAVRIN_CCACHE ccache)
if(TAVRIN_CCACHE AND NOT TAVRIN_SYNTAX_ONLY AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_DIR=${PROJECT_SOURCE_DIR}/build/ccache
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros
      ${TAVRIN_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()
