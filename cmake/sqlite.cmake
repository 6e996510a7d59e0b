# SQLite::SQLite3, the stand-in host's storage. Natively Debian's library; for Windows it is compiled from the
# amalgamation, SQLite in one source. Debian's own source package has to be built into one first, with a native compiler
# and more; the sources of its Perl driver carry it ready-made, so they are fetched once into build/downloads and checked.
if(NOT WIN32)
  find_package(SQLite3 REQUIRED)
  return()
endif()

block()
set(package libdbd-sqlite3-perl)
set(version 1.72)
set(unpacked DBD-SQLite-${version})
set(checksum 5ca41e61eb52b52bd862a3088b912a75fe70910ac789b9a9983e0a449e94f551)

set(downloads ${PROJECT_SOURCE_DIR}/build/downloads)
set(archive ${downloads}/${package}_${version}.orig.tar.gz)
file(MAKE_DIRECTORY ${downloads})
# Two build folders may be configured at the same time.
file(LOCK ${downloads} DIRECTORY GUARD FILE TIMEOUT 300)
if(NOT EXISTS ${archive})
  message(STATUS "Fetching SQLite with ${package} ${version}")
  execute_process(
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-from-debian
            pool/main/libd/${package}/${package}_${version}.orig.tar.gz ${checksum} ${archive}
    ERROR_VARIABLE failure RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${failure}Put the file there by hand: ${archive}")
  endif()
endif()
file(SHA256 ${archive} found)
if(NOT found STREQUAL checksum)
  message(FATAL_ERROR "${archive} is not the expected file (sha256 ${found}); delete it and configure again.")
endif()

set(sqlite ${CMAKE_BINARY_DIR}/sqlite)
if(NOT EXISTS ${sqlite}/${unpacked}/sqlite3.c)
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${sqlite} PATTERNS */sqlite3.c */sqlite3.h)
endif()
add_library(tavrin_sqlite3 STATIC EXCLUDE_FROM_ALL ${sqlite}/${unpacked}/sqlite3.c)
target_include_directories(tavrin_sqlite3 SYSTEM PUBLIC ${sqlite}/${unpacked})
target_compile_definitions(tavrin_sqlite3 PRIVATE SQLITE_OMIT_LOAD_EXTENSION SQLITE_DQS=0)
# Foreign code: its warnings are its authors' business. It serves the stand-in host only, so a quick build will do.
target_compile_options(tavrin_sqlite3 PRIVATE -w -O0)
add_library(SQLite::SQLite3 ALIAS tavrin_sqlite3)
endblock()
