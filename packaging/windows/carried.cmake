# The icon and the version in the executable, and what the folder carries for Windows: Qt's libraries and plug-ins, the
# run-time libraries of the compiler, and their licences.

enable_language(RC)
alembra_draw_icons(PNG_ICONS "16;24;32;48;64;256" "${PROJECT_SOURCE_DIR}/data/icons/alembra.svg")
find_program(ICOTOOL icotool REQUIRED)
set(ICO "${CMAKE_CURRENT_BINARY_DIR}/alembra.ico")
add_custom_command(OUTPUT "${ICO}" COMMAND "${ICOTOOL}" --create "--output=${ICO}" ${PNG_ICONS}
                   DEPENDS ${PNG_ICONS} VERBATIM)
configure_file(windows/alembra.rc.in alembra.rc @ONLY)
set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/alembra.rc" TARGET_DIRECTORY Alembra_uk
                            PROPERTIES OBJECT_DEPENDS "${ICO}")
target_sources(Alembra_uk PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/alembra.rc")
add_custom_target(windows_icon DEPENDS "${ICO}")
add_dependencies(Alembra_uk windows_icon)

# Named here, because CMake writes the names of libraries in small letters when it looks for them, and Qt's are not.
foreach(module Core Gui Network PrintSupport Widgets)
    install(FILES $<TARGET_FILE:Qt6::${module}> DESTINATION alembra COMPONENT portable)
endforeach()
foreach(plugin platforms/qwindows styles/qwindowsvistastyle imageformats/qgif imageformats/qjpeg tls/qschannelbackend)
    cmake_path(GET plugin PARENT_PATH kind)
    install(FILES "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${plugin}.dll" DESTINATION alembra/plugins/${kind}
            COMPONENT portable)
endforeach()
foreach(library libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}.dll OUTPUT_VARIABLE file
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${file}" DESTINATION alembra COMPONENT portable)
endforeach()

install(FILES "${QT6_INSTALL_PREFIX}/../source/debian/copyright" DESTINATION alembra/licences RENAME qt6-base.txt
        COMPONENT portable)
foreach(package gcc-mingw-w64-base mingw-w64-common)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION alembra/licences RENAME ${package}.txt
            COMPONENT portable)
endforeach()
