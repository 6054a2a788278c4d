# Refuses a source that includes a header of a room that its own room may not know.
# cmake -DROOM=NAME -DTREE=FOLDER -DMAY_KNOW=NAMES -DSOURCES=FILES -DSTAMP=FILE -P check_room.cmake, lists separated by |
cmake_policy(VERSION 3.25)

string(REPLACE "|" ";" MAY_KNOW "${MAY_KNOW}")
string(REPLACE "|" ";" SOURCES "${SOURCES}")
foreach(source IN LISTS SOURCES)
  file(READ ${source} text)
  # At these, a list would be torn or joined.
  string(REGEX REPLACE "[][;]" " " text "${text}")
  # A compiler joins lines before it reads them.
  string(REGEX REPLACE "\\\\[ \t\r]*\n" "" text "${text}")
  if(text MATCHES "(#|%:)[ \t]*/[*]")
    message(FATAL_ERROR "${source}: a directive is written plainly: ${CMAKE_MATCH_0}")
  endif()
  string(REGEX MATCHALL "(#|%:)[^\n]*(include|import)[^\n]*" includes "${text}")
  get_filename_component(own ${source} DIRECTORY)
  foreach(line IN LISTS includes)
    if(NOT line MATCHES "^#include (<[^>]+>|\"[^\"]+\")")
      message(FATAL_ERROR "${source}: an include is written plainly: ${line}")
    endif()
    string(REGEX REPLACE "^#include [<\"]([^>\"]*).*" "\\1" header "${line}")
    # A compiler also looks beside the source.
    if(IS_ABSOLUTE "${header}" OR header MATCHES "\\.\\./"
        OR (EXISTS "${own}/${header}" AND NOT EXISTS "${TREE}/${header}"))
      message(FATAL_ERROR "${source}: a header is named from the top of src: ${line}")
    endif()
    # Headers of the language and of other libraries are none of src.
    if(NOT EXISTS "${TREE}/${header}")
      continue()
    endif()
    if(NOT header MATCHES "\\.h$")
      message(FATAL_ERROR "${source}: only headers, NAME.h, are checked and may be included: ${line}")
    endif()
    get_filename_component(room "${header}" DIRECTORY)
    if(NOT room IN_LIST MAY_KNOW)
      message(FATAL_ERROR "${source}: the room ${ROOM} may not know ${room}: ${line}")
    endif()
  endforeach()
endforeach()
file(TOUCH ${STAMP})
