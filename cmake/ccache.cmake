# Compiles through ccache where it is installed; its cache stays inside the clone. Paths below the clone count as
# relative ones, so that another clone of the same sources is served from the same cache.
find_program(TAVRIN_CCACHE ccache)
if(TAVRIN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_DIR=${PROJECT_SOURCE_DIR}/build/ccache
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${TAVRIN_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()
