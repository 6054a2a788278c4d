# Refuses a source that includes a header of a room that its own room may not know.
# cmake -DROOM=NAME -DMAY_KNOW=NAMES -DSOURCES=FILES -DSTAMP=FILE -P check_room.cmake, lists separated by |
cmake_policy(VERSION 3.25)

string(REPLACE "|" ";" MAY_KNOW "${MAY_KNOW}")
string(REPLACE "|" ";" SOURCES "${SOURCES}")
foreach(source IN LISTS SOURCES)
  file(STRINGS ${source} includes REGEX "^#include \"[a-z_]+/")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^#include \"([a-z_/]+)/.*" "\\1" room "${line}")
    if(NOT room IN_LIST MAY_KNOW)
      message(FATAL_ERROR "${source}: the room ${ROOM} may not know ${room}: ${line}")
    endif()
  endforeach()
endforeach()
file(TOUCH ${STAMP})
