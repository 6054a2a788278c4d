# The build for node and the browser with Emscripten: the rooms without Qt as WebAssembly.

# Failures are exceptions of the engine itself, which cost nothing while none is thrown.
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions)

# Engines that know those exceptions know these instructions too: conversions of numbers without a trap, and copies.
add_compile_options(-mnontrapping-fptoint -msign-ext -mbulk-memory)

# Optimised at link time, the interpreter is a fifth faster.
add_compile_options(-flto)
add_link_options(-flto)

# The compiler alone decides what is put into its caller: the optimizer of the linker does not know `noinline`.
add_link_options(-sBINARYEN_EXTRA_PASSES=--one-caller-inline-max-function-size=0)

# The linker calls node, and a node that is not Debian's does not look where Debian's packages for it are.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs")

# What the C++ library of the toolchain lacks; see src/web/standard.
target_include_directories(zerimo_options SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/src/web/standard)
target_link_libraries(zerimo_options INTERFACE zerimo_standard)

# A header of the system, alone: the others there are of another C library.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
file(CREATE_LINK /usr/include/CLI ${CMAKE_BINARY_DIR}/include/CLI SYMBOLIC)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
target_include_directories(CLI11::CLI11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)

if(NOT EXISTS ${ZERIMO_FONT})
  message(FATAL_ERROR "The font of printed text is missing: ${ZERIMO_FONT} (package fonts-liberation)")
endif()

# zerimo_web_command(NAME SOURCE): a program for node, build/web/NAME.mjs, with the module and the font beside it.
function(zerimo_web_command name source)
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE zerimo_web zerimo_options)
  target_compile_definitions(${name} PRIVATE ZERIMO_VERSION="${PROJECT_VERSION}")
  target_link_options(${name} PRIVATE
    -sMODULARIZE=1 -sNODERAWFS=1 -sENVIRONMENT=node -sEXIT_RUNTIME=1 -sALLOW_MEMORY_GROWTH=1 -sTOTAL_STACK=8MB -sTEXTDECODER=1)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR} SUFFIX .cjs)
  configure_file(${PROJECT_SOURCE_DIR}/src/web/command.mjs.in ${CMAKE_BINARY_DIR}/${name}.mjs @ONLY
                 FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  configure_file(${ZERIMO_FONT} ${CMAKE_BINARY_DIR}/font.ttf COPYONLY)
endfunction()

# zerimo_web_page(NAME SOURCES... LINKS...): the system for a worker of the page, build/web/page/zerimo.mjs, with the
# module and the font beside it.
function(zerimo_web_page name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} zerimo_options)
  target_link_options(${name} PRIVATE
    --no-entry -sMODULARIZE=1 -sEXPORT_ES6=1 -sENVIRONMENT=worker -sALLOW_MEMORY_GROWTH=1 -sTOTAL_STACK=8MB
    -sFORCE_FILESYSTEM=1 -sEXPORTED_FUNCTIONS=_malloc,_free -sEXPORTED_RUNTIME_METHODS=ccall,FS -sTEXTDECODER=2)
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/page OUTPUT_NAME zerimo SUFFIX .mjs)
  configure_file(${ZERIMO_FONT} ${CMAKE_BINARY_DIR}/page/font.ttf COPYONLY)
endfunction()
