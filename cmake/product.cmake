# What the DLL's version resource and the packages say about the product. The build's number tells two builds of one
# version apart: the count of commits up to this one, or 0 in a tree without its history.
set(TAVRIN_PUBLISHER "Tavrin")
set(TAVRIN_COPYRIGHT "Copyright © Tavrin")
set(TAVRIN_DESCRIPTION "Tavrin - office utilities for accounting programs")
set(TAVRIN_DESCRIPTION_RO "Tavrin - utilitare de birou pentru programe de contabilitate")

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
