# Installs what belongs to the user once it is there: the options where there are none, and the database where there is
# none or where it is still as it came. Runs before the original database, which tells that, is renewed.

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
