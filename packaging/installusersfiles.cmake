# Installs the files that belong to the user afterwards: the options if there are none, the database if there is none or
# the user has not changed it. Must run before the original database is installed, which the user's is compared with.

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/alembra")

if(NOT EXISTS "${folder}/options_uk.ini")
    file(INSTALL "${OPTIONS_FILE}" DESTINATION "${CMAKE_INSTALL_PREFIX}/alembra")
endif()

set(mine "${folder}/Data/Database_uk.mdb")
set(origin "${folder}/Backup/Database_uk_origin.rbk")
set(keep FALSE)
if(EXISTS "${mine}")
    file(SHA256 "${mine}" mine_hash)
    file(SHA256 "${ORIGINAL_DATABASE}" new_hash)
    set(origin_hash "")
    if(EXISTS "${origin}")
        file(SHA256 "${origin}" origin_hash)
    endif()
    if(NOT mine_hash STREQUAL origin_hash AND NOT mine_hash STREQUAL new_hash)
        set(keep TRUE)
    endif()
endif()
if(keep)
    message(STATUS "Kept the changed database ${mine}; the new one is ${origin}")
else()
    get_filename_component(name "${ORIGINAL_DATABASE}" NAME)
    file(INSTALL "${ORIGINAL_DATABASE}" DESTINATION "${CMAKE_INSTALL_PREFIX}/alembra/Data" RENAME Database_uk.mdb)
endif()
