# SQLite::SQLite3, the stand-in host's storage. Natively Debian's library; for Windows it is compiled from the
# amalgamation that a pinned npm package carries, fetched once into build/downloads and checked.
if(NOT WIN32)
  find_package(SQLite3 REQUIRED)
  return()
endif()

block()
set(package better-sqlite3)
set(version 12.11.1)
set(checksum 76af40b40a608393c616d0733c54819771d94231e893981a40233ace1d9893469298)
string(APPEND checksum 30acd426e7548f3f1e001242434ab16169b1e20ef5b7a0e71c696216c87c)

set(downloads ${PROJECT_SOURCE_DIR}/build/downloads)
set(archive ${downloads}/${package}-${version}.tgz)
file(MAKE_DIRECTORY ${downloads})
# Two build folders may be configured at the same time.
file(LOCK ${downloads} DIRECTORY GUARD FILE TIMEOUT 300)
if(NOT EXISTS ${archive})
  message(STATUS "Fetching ${package} ${version}")
  execute_process(
    COMMAND npm pack --loglevel=error --cache ${downloads}/npm-cache --pack-destination ${downloads} ${package}@${version}
    WORKING_DIRECTORY ${downloads}
    OUTPUT_QUIET ERROR_VARIABLE failure RESULT_VARIABLE result)
  if(NOT result EQUAL 0 OR NOT EXISTS ${archive})
    message(FATAL_ERROR "npm pack ${package}@${version} failed: ${failure}")
  endif()
endif()
file(SHA512 ${archive} found)
if(NOT found STREQUAL checksum)
  message(FATAL_ERROR "${archive} is not the expected file (sha512 ${found}); delete it and configure again.")
endif()

set(sqlite ${CMAKE_BINARY_DIR}/sqlite)
if(NOT EXISTS ${sqlite}/package/deps/sqlite3/sqlite3.c)
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${sqlite} PATTERNS */deps/sqlite3/*)
endif()
add_library(tavrin_sqlite3 STATIC EXCLUDE_FROM_ALL ${sqlite}/package/deps/sqlite3/sqlite3.c)
target_include_directories(tavrin_sqlite3 SYSTEM PUBLIC ${sqlite}/package/deps/sqlite3)
target_compile_definitions(tavrin_sqlite3 PRIVATE SQLITE_OMIT_LOAD_EXTENSION SQLITE_DQS=0)
# Foreign code: its warnings are its authors' business. It serves the stand-in host only, so a quick build will do.
target_compile_options(tavrin_sqlite3 PRIVATE -w -O1)
add_library(SQLite::SQLite3 ALIAS tavrin_sqlite3)
endblock()
