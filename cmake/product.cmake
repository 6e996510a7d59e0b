# What version resources and packages say about the product. The build's number tells two builds of one
# version apart: the count of commits up to this one, or 0 in a tree without its history.
set(TAVRIN_PUBLISHER "Tavrin")
set(TAVRIN_COPYRIGHT "Copyright © Tavrin")
# Of the DLL, and of all of it.
set(TAVRIN_DESCRIPTION "Tavrin - office utilities for accounting programs")
set(TAVRIN_DESCRIPTION_RO "Tavrin - utilitare de birou pentru programe de contabilitate")
set(TAVRIN_DOCTOR_DESCRIPTION "Tavrin - what is wrong on a machine or in a database")
set(TAVRIN_DOCTOR_DESCRIPTION_RO "Tavrin - ce nu este în regulă pe un calculator sau într-o bază de date")

# tavrin_git(<variable> <argument>...): what git answers about this folder, or nothing.
function(tavrin_git variable)
  execute_process(COMMAND git ${ARGN} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                  OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    set(answer "")
  endif()
  set(${variable} "${answer}" PARENT_SCOPE)
endfunction()

# A copy inside another repository has a history that is not its own; a shallow clone counts what it has.
set(TAVRIN_BUILD 0)
tavrin_git(top rev-parse --show-toplevel)
tavrin_git(shallow rev-parse --is-shallow-repository)
file(REAL_PATH ${PROJECT_SOURCE_DIR} source_folder)
if(top STREQUAL source_folder AND shallow STREQUAL "false")
  tavrin_git(TAVRIN_BUILD rev-list --count HEAD)
  math(EXPR TAVRIN_BUILD "${TAVRIN_BUILD} % 65536")
  # It changes with each commit.
  tavrin_git(log rev-parse --path-format=absolute --git-path logs/HEAD)
  if(EXISTS "${log}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${log})
  endif()
endif()

# tavrin_version_info(<variable> <file> <type> <description in Romanian> <description>): the version resource of a file,
# as text for a resource script.
set(TAVRIN_VERSION_INFO_TEMPLATE ${CMAKE_CURRENT_LIST_DIR}/version_info.rc.in)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TAVRIN_VERSION_INFO_TEMPLATE})
function(tavrin_version_info variable TAVRIN_FILE TAVRIN_FILE_TYPE TAVRIN_FILE_DESCRIPTION_RO TAVRIN_FILE_DESCRIPTION)
  get_filename_component(TAVRIN_FILE_STEM ${TAVRIN_FILE} NAME_WE)
  file(READ ${TAVRIN_VERSION_INFO_TEMPLATE} text)
  string(CONFIGURE "${text}" text @ONLY)
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()
