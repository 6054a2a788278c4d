# Read by cpack for each kind of package: the Debian package is laid out for the system, the archive is one folder.

set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL system)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_COMPONENTS_ALL portable)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
