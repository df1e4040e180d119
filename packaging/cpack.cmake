# Names and descriptions of the packages. cpackgenerators.cmake says which component goes into which.

set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/cpackgenerators.cmake")
set(CPACK_PACKAGE_NAME alembra)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${ALEMBRA_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${ALEMBRA_WEB_SITE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reference and calculator for the chemistry laboratory")
set(CPACK_PACKAGE_DESCRIPTION
    "Alembra is a desktop reference for people who work in a chemistry or
biochemistry laboratory: the periodic table with data and isotopes, tables on
solvents, solutions and biomolecules, NMR and infrared charts, named reactions,
solution calculators, unit conversions, physical constants and SI units.

Tables can be searched, saved as HTML or PDF and printed. Each user has their
own options and their own copy of the database.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_THREADS 2)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME "alembra-${PROJECT_VERSION}-win64")
else()
    set(CPACK_GENERATOR TXZ DEB)
    string(TOLOWER "alembra-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" CPACK_PACKAGE_FILE_NAME)
endif()
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF) # the archive contains one folder, "alembra", as an installation does

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ALEMBRA_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# A font with the letters of formulas, a program that opens links, and a viewer of the help file, without which the
# program shows the pages itself.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, xdg-utils, xchm | kchmviewer")
# For desktops without X.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")

include(CPack)
