# One folder with the programs, the help pages, the samples and the slides. It works wherever it is copied.

set(ZERIMO_APP_FOLDER ${CMAKE_BINARY_DIR}/zerimo)

foreach(program zerimo zerimo-batch)
  if(TARGET ${program})
    set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ZERIMO_APP_FOLDER})
    if(MSVC)
      target_sources(${program} PRIVATE ${PROJECT_SOURCE_DIR}/packaging/windows/zerimo.manifest)
    endif()
  endif()
endforeach()
# On Windows the window opens no console.
set_target_properties(zerimo PROPERTIES WIN32_EXECUTABLE ON)

add_subdirectory(help)

file(GLOB_RECURSE sample_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/samples/*)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/app_folder.stamp
  COMMAND make_pages ${ZERIMO_APP_FOLDER}/ZMHELP ${ZERIMO_HELP_SOURCES}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/samples ${ZERIMO_APP_FOLDER}
  COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/app_folder.stamp
  DEPENDS make_pages ${ZERIMO_HELP_SOURCES} ${sample_files}
  VERBATIM)
add_custom_target(app_folder ALL DEPENDS ${CMAKE_BINARY_DIR}/app_folder.stamp)
