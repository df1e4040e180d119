# The archive holds the portable folder, the Debian package the system's. Read by CPack once for each generator.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(component system)
else()
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(component portable)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build_folder};Alembra;${component};/")
