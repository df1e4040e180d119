# What the portable folder carries, so that it runs without an installed Qt: Qt's plug-ins, and every library that the
# program and they need, except those of each desktop.

set(QT_PLUGINS
    platforms/libqxcb.so
    platforms/libqwayland-generic.so
    platforms/libqoffscreen.so
    wayland-shell-integration/libxdg-shell.so
    # Windows have title bars by the second, which asks for the first.
    wayland-graphics-integration-client/libqt-plugin-wayland-egl.so
    wayland-decoration-client/libbradient.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so
    imageformats/libqgif.so
    imageformats/libqjpeg.so
    printsupport/libcupsprintersupport.so
    tls/libqopensslbackend.so)

# They have to fit the kernel, the X server, the graphics driver, the fonts and the printers of the machine. What these
# libraries need themselves is there with them. Graphics drivers need the newest run-time library of C++, so it is theirs.
set(LIBRARIES_OF_THE_SYSTEM
    "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|stdc\\+\\+|gcc_s)\\.so"
    "^lib(X11|X11-xcb|Xau|Xdmcp|xcb|ICE|SM)\\.so" "^libwayland-"
    "^lib(GL|GLX|EGL|OpenGL|drm|gbm)\\.so"
    "^lib(fontconfig|freetype|expat|z)\\.so"
    "^libcups\\.so")

# The program looks into its own folder first, on behalf of the libraries and plug-ins too: hence the old kind of tag.
set_target_properties(Alembra_uk PROPERTIES INSTALL_RPATH "$ORIGIN/lib" BUILD_RPATH "$ORIGIN/lib")
target_link_options(Alembra_uk PRIVATE -Wl,--disable-new-dtags)

foreach(plugin IN LISTS QT_PLUGINS)
    set(file "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${plugin}")
    cmake_path(GET plugin STEM name)
    cmake_path(GET plugin PARENT_PATH kind)
    if(NOT EXISTS "${file}")
        install(CODE "message(WARNING \"Without ${plugin}: see docs/packages.md\")" COMPONENT portable)
        continue()
    endif()
    add_library(${name} MODULE IMPORTED)
    set_target_properties(${name} PROPERTIES IMPORTED_LOCATION "${file}")
    install(IMPORTED_RUNTIME_ARTIFACTS ${name} RUNTIME_DEPENDENCY_SET carried
            LIBRARY DESTINATION "alembra/plugins/${kind}" COMPONENT portable)
endforeach()
install(RUNTIME_DEPENDENCY_SET carried PRE_EXCLUDE_REGEXES ${LIBRARIES_OF_THE_SYSTEM}
        LIBRARY DESTINATION alembra/lib COMPONENT portable)
install(SCRIPT licences.cmake COMPONENT portable)
