# What every target of the project is compiled with.

# The compiler cache identifies files by their place in the tree, so that a fresh clone in another folder finds what
# this one has compiled. Debuggers find the sources from the top of the tree too.
find_program(ZERIMO_CCACHE ccache)
if(ZERIMO_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${ZERIMO_CCACHE})
  if(NOT MSVC)
    add_compile_options(-fdebug-prefix-map=${PROJECT_SOURCE_DIR}=.)
  endif()
endif()

set(ZERIMO_FONT /usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf CACHE FILEPATH
    "The font of printed text where there is no toolkit, delivered beside the program")

add_library(zerimo_warnings INTERFACE)
if(MSVC)
  # Sources are UTF-8, and min and max are not macros.
  target_compile_options(zerimo_warnings INTERFACE /W4 /utf-8)
  target_compile_definitions(zerimo_warnings INTERFACE NOMINMAX)
else()
  target_compile_options(zerimo_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endif()
# GCC 12 warns wrongly about "text" + std::string in optimised builds.
target_compile_options(zerimo_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

add_library(zerimo_options INTERFACE)
target_link_libraries(zerimo_options INTERFACE zerimo_warnings)
target_include_directories(zerimo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(APPLE)
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS -std=c++20)
  check_cxx_source_compiles("
    #include <charconv>
    int main() {
      const char text[] = \"1\";
      double number = 0;
      return std::from_chars(text, text + 1, number).ec != std::errc();
    }" ZERIMO_READS_NUMBERS)
  if(NOT ZERIMO_READS_NUMBERS)
    message(FATAL_ERROR "The C++ library has no std::from_chars for numbers with a point; LLVM 20 has it")
  endif()
endif()

if(ZERIMO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Containers of the library that watch their bounds, and ways through the code that guide a fuzzer. Watching comparisons
# took 43 % of the time of a session; the dictionaries do for them.
if(ZERIMO_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
  # The sanitizer for addresses finds these too, at the use; the preset "sanitized" watches them as well.
  add_compile_options(-fno-sanitize=null,alignment,object-size,vptr)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()

if(ZERIMO_COVERAGE)
  add_compile_options(--coverage -fprofile-abs-path)
  add_link_options(--coverage)
endif()

# What is expected of packaged programs: position-independent code, and checked calls and stacks.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE MATCHES "^Rel")
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # No library exports anything, so that functions of one source can be compiled into each other.
  set(CMAKE_CXX_VISIBILITY_PRESET hidden)
  set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
  add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()

# zerimo_library(NAME SOURCES... [LINKS...]): one room of src/ as a static library. It may link only rooms that stand
# before it. Its sources may include their own room and those that its library links, directly or through another; the
# build refuses all others.
function(zerimo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  zerimo_room_links(links "${ARG_LINKS}")
  foreach(link IN LISTS links)
    if(NOT TARGET ${link})
      message(FATAL_ERROR "${name} may not link ${link}: a room links only rooms that stand before it")
    endif()
  endforeach()
  add_library(${name} STATIC ${ARG_SOURCES})
  set_property(GLOBAL APPEND PROPERTY ZERIMO_LIBRARIES ${name})
  set_property(GLOBAL PROPERTY ZERIMO_LINKS_OF_${name} ${links})
  set_property(GLOBAL PROPERTY ZERIMO_SOURCES_OF_${name} ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE zerimo_options)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  zerimo_guard_room(${name})
endfunction()

# The names of our own libraries in a list of links, also within generator expressions.
function(zerimo_room_links result links)
  string(REGEX MATCHALL "zerimo_[a-z0-9_]+" found "${links}")
  set(${result} ${found} PARENT_SCOPE)
endfunction()

# What a library is given after zerimo_library would get past the checks of its room.
function(zerimo_check_additions)
  get_property(libraries GLOBAL PROPERTY ZERIMO_LIBRARIES)
  foreach(name IN LISTS libraries)
    get_property(links GLOBAL PROPERTY ZERIMO_LINKS_OF_${name})
    get_target_property(linked ${name} LINK_LIBRARIES)
    get_target_property(lent ${name} INTERFACE_LINK_LIBRARIES)
    zerimo_room_links(found "${linked};${lent}")
    foreach(link IN LISTS found)
      if(link IN_LIST libraries AND NOT link IN_LIST links)
        message(FATAL_ERROR "${name} may not link ${link}: zerimo_library is given all rooms that a room links")
      endif()
    endforeach()

    get_property(sources GLOBAL PROPERTY ZERIMO_SOURCES_OF_${name})
    get_target_property(compiled ${name} SOURCES)
    list(REMOVE_ITEM compiled ${sources})
    foreach(source IN LISTS compiled)
      cmake_path(IS_PREFIX PROJECT_BINARY_DIR "${source}" is_generated)
      if(NOT is_generated)
        message(FATAL_ERROR "${name} may not compile ${source}: zerimo_library is given all sources of a room")
      endif()
    endforeach()
  endforeach()
endfunction()
cmake_language(DEFER CALL zerimo_check_additions)

function(zerimo_guard_room name)
  file(RELATIVE_PATH room ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  set(may_know ${room})
  get_property(links GLOBAL PROPERTY ZERIMO_LINKS_OF_${name})
  foreach(link IN LISTS links)
    get_property(known GLOBAL PROPERTY ZERIMO_ROOMS_OF_${link})
    list(APPEND may_know ${known})
  endforeach()
  list(REMOVE_DUPLICATES may_know)
  set_property(GLOBAL PROPERTY ZERIMO_ROOMS_OF_${name} ${may_know})

  get_target_property(sources ${name} SOURCES)
  list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  # A room of two libraries: a header goes with its source.
  foreach(header IN LISTS headers)
    string(REGEX REPLACE "h$" "cpp" source ${header})
    if(EXISTS ${source} AND NOT source IN_LIST sources)
      list(REMOVE_ITEM headers ${header})
    endif()
  endforeach()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.room)
  string(REPLACE ";" "|" may_know "${may_know}")
  set(checked ${sources} ${headers})
  string(REPLACE ";" "|" checked "${checked}")
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -DROOM=${room} -DTREE=${PROJECT_SOURCE_DIR}/src "-DMAY_KNOW=${may_know}" "-DSOURCES=${checked}" -DSTAMP=${stamp}
            -P ${PROJECT_SOURCE_DIR}/cmake/check_room.cmake
    DEPENDS ${sources} ${headers} ${PROJECT_SOURCE_DIR}/cmake/check_room.cmake
    COMMENT "Room ${room}: what it includes"
    VERBATIM)
  target_sources(${name} PRIVATE ${stamp})
endfunction()

# zerimo_test(NAME SOURCES... LINKS... [READS_TREE SOURCES...] [PROPERTIES...]): one test program; every test in it is a
# test of its own to ctest. READS_TREE names the sources that know where the tree is, ZERIMO_SOURCE_DIR: only they are
# compiled again in every clone.
function(zerimo_test name)
  if(NOT ZERIMO_TESTS)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;READS_TREE;PROPERTIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest_main zerimo_options)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  set_property(SOURCE ${ARG_READS_TREE} APPEND PROPERTY COMPILE_DEFINITIONS ZERIMO_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen" ${ARG_PROPERTIES})
endfunction()
