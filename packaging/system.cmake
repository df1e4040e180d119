# The files for all users of a machine, which are more than the program folder.

set(METAINFO "${CMAKE_CURRENT_BINARY_DIR}/${ALEMBRA_APPSTREAM_ID}.metainfo.xml")
configure_file(alembra.metainfo.xml.in "${METAINFO}" @ONLY)

set(ICON "${PROJECT_SOURCE_DIR}/data/icons/alembra.svg")
set(ICON_SIZES 16 22 24 32 48 64 128 256)
alembra_draw_icons(PNG_ICONS "${ICON_SIZES}" "${ICON}")

# compress(<source> <name>): gzips without a time stamp, as Debian requires of documents, and adds to MADE_FILES.
find_program(GZIP gzip REQUIRED)
set(MADE_FILES ${PNG_ICONS})
function(compress source name)
    set(file "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    add_custom_command(OUTPUT "${file}" COMMAND "${GZIP}" -9nc "${source}" > "${file}" DEPENDS "${source}" VERBATIM)
    set(MADE_FILES ${MADE_FILES} "${file}" PARENT_SCOPE)
endfunction()
configure_file(alembra.1.in alembra.1 @ONLY)
configure_file(changelog.debian.in changelog.Debian @ONLY)
# In the machine-readable copyright file, a line begins with a blank and an empty one is a dot.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" license)
string(REGEX REPLACE "^MIT License\n\n[^\n]*\n\n" "" license "${license}")
string(STRIP "${license}" license)
string(REPLACE "\n\n" "\n.\n" license "${license}")
string(REPLACE "\n" "\n " ALEMBRA_LICENSE "${license}")
configure_file(copyright.in copyright @ONLY)
compress("${CMAKE_CURRENT_BINARY_DIR}/alembra.1" alembra.1.gz)
compress("${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog.gz)
compress("${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian" changelog.Debian.gz)
compress("${PROJECT_SOURCE_DIR}/data/SOURCES.md" SOURCES.md.gz)
compress("${PROJECT_SOURCE_DIR}/data/LICENSES.md" LICENSES.md.gz)
add_custom_target(packaging_files ALL DEPENDS ${MADE_FILES})

set(DOC_FOLDER "${CMAKE_INSTALL_DATAROOTDIR}/doc/alembra")
set(IN_SYSTEM COMPONENT system EXCLUDE_FROM_ALL)
set(MADE "${CMAKE_CURRENT_BINARY_DIR}")

require_built(system "${READ_ONLY_FILES};${MADE_FILES}" EXCLUDE_FROM_ALL)
# The launcher finds the program relative to itself, so the tree can be anywhere.
install(PROGRAMS alembra.sh DESTINATION bin RENAME alembra ${IN_SYSTEM})
install(TARGETS Alembra_uk DESTINATION lib/alembra ${IN_SYSTEM})
# It finds the libraries of the system without a path to those that the portable folder carries.
install(CODE "file(RPATH_REMOVE FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/lib/alembra/Alembra_uk\")" ${IN_SYSTEM})
install_program(system lib/alembra EXCLUDE_FROM_ALL)
install(FILES "${OPTIONS_FILE}" DESTINATION lib/alembra ${IN_SYSTEM})
install(FILES "${METAINFO}" DESTINATION share/metainfo ${IN_SYSTEM})
install(FILES alembra.desktop DESTINATION share/applications ${IN_SYSTEM})
install(FILES "${ICON}" DESTINATION share/icons/hicolor/scalable/apps ${IN_SYSTEM})
foreach(size file IN ZIP_LISTS ICON_SIZES PNG_ICONS)
    install(FILES "${file}" DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME alembra.png ${IN_SYSTEM})
endforeach()
install(FILES "${MADE}/alembra.1.gz" DESTINATION share/man/man1 ${IN_SYSTEM})
install(FILES "${MADE}/changelog.gz" "${MADE}/changelog.Debian.gz" "${MADE}/SOURCES.md.gz"
              "${MADE}/LICENSES.md.gz" "${MADE}/copyright" "${PROJECT_SOURCE_DIR}/docs/data.md"
        DESTINATION "${DOC_FOLDER}" ${IN_SYSTEM})
