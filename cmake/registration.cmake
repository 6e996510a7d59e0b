# How programs find the component: what it registers, and the assembly by which it is found without registration. The
# ids are read from the interface definition.

# tavrin_read_ids(<idl>): library_id, interface_id, events_id and coclass_id, in the order in which the file has them,
# and library_version, in the caller's scope.
function(tavrin_read_ids idl)
  file(STRINGS ${idl} lines REGEX "uuid\\(")
  list(LENGTH lines count)
  if(NOT count EQUAL 4)
    message(FATAL_ERROR "${idl} should have ids for library, interface, events and class")
  endif()
  foreach(name library_id interface_id events_id coclass_id)
    list(POP_FRONT lines line)
    string(REGEX REPLACE ".*uuid\\(([0-9a-f-]+)\\).*" "\\1" id "${line}")
    string(TOUPPER "${id}" id)
    set(${name} ${id} PARENT_SCOPE)
  endforeach()
  file(STRINGS ${idl} line REGEX "version\\(")
  string(REGEX REPLACE ".*version\\(([0-9.]+)\\).*" "\\1" version "${line}")
  set(library_version ${version} PARENT_SCOPE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${idl})
endfunction()

# The version of the assembly is the contract's: a program's manifest names it, and has to find it whatever the
# product's is. It changes when the interface does.
set(TAVRIN_CONTRACT_VERSION 1.0.0.0)

# tavrin_write_side_by_side_manifest(<template> <output> <idl>)
function(tavrin_write_side_by_side_manifest template output idl)
  tavrin_read_ids(${idl})
  set(manifest_architecture x86)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(manifest_architecture amd64)
  endif()
  configure_file(${template} ${output} @ONLY)
endfunction()

# tavrin_write_registration(<list> <table> <rows> <idl>): the list with its ids, as the C++ table that the DLL
# registers itself by, and as the text that packages are made from.
function(tavrin_write_registration list table rows idl)
  tavrin_read_ids(${idl})
  set(platform win32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(platform win64)
  endif()
  configure_file(${list} ${rows} @ONLY)
  file(STRINGS ${rows} lines REGEX "^[a-z]")
  set(text "")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^([a-z]+) \\| ([^|]+) \\|( [^|]+)? \\| ([^|]+)$")
      message(FATAL_ERROR "${list}: not a row: ${line}")
    endif()
    set(part ${CMAKE_MATCH_1})
    set(key "${CMAKE_MATCH_2}")
    set(value "${CMAKE_MATCH_4}")
    string(STRIP "${CMAKE_MATCH_3}" name)
    string(SUBSTRING ${part} 0 1 initial)
    string(SUBSTRING ${part} 1 -1 rest)
    string(TOUPPER ${initial} initial)
    string(APPEND text "{Part::${initial}${rest}, LR\"(${key})\", L\"${name}\", L\"${value}\"},\n")
  endforeach()
  file(CONFIGURE OUTPUT ${table} CONTENT "${text}" @ONLY)
endfunction()
