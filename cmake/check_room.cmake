# Refuses a source that includes a header of a room that its own room may not know.
# cmake -DROOM=NAME -DTREE=FOLDER -DMAY_KNOW=NAMES -DSOURCES=FILES -DSTAMP=FILE -P check_room.cmake, lists separated by |
cmake_policy(VERSION 3.25)

string(REPLACE "|" ";" MAY_KNOW "${MAY_KNOW}")
string(REPLACE "|" ";" SOURCES "${SOURCES}")
foreach(source IN LISTS SOURCES)
  file(STRINGS ${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*[<\"]([^>\"]*).*" "\\1" header "${line}")
    if(header MATCHES "\\.\\./")
      message(FATAL_ERROR "${source}: a header is named from the top of src: ${line}")
    endif()
    # Headers of the language and of other libraries are none of src.
    if(NOT EXISTS "${TREE}/${header}")
      continue()
    endif()
    get_filename_component(room "${header}" DIRECTORY)
    if(NOT room IN_LIST MAY_KNOW)
      message(FATAL_ERROR "${source}: the room ${ROOM} may not know ${room}: ${line}")
    endif()
  endforeach()
endforeach()
file(TOUCH ${STAMP})
