# Files in a package carry the time of the release, so that two builds give the same bytes.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/changelog.debian.in" date REGEX "^ -- ")
    string(REGEX REPLACE "^ -- .*  " "" date "${date}")
    execute_process(COMMAND date --date "${date}" +%s OUTPUT_VARIABLE seconds OUTPUT_STRIP_TRAILING_WHITESPACE
                    COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} "${seconds}")
endif()

# The archive contains the portable folder, the Debian package the files of the system. CPack reads this once for each
# generator.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(component system)
else()
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(component portable)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build_folder};Alembra;${component};/")
