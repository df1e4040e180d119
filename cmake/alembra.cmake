# Language, warnings, hardening, sanitizers, and functions for the project's kinds of target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast)
if(ALEMBRA_WERROR)
    add_compile_options(-Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # GCC 12 warns of uninitialised members in every std::optional of a class with a Qt container, always wrongly.
    add_compile_options(-Wno-maybe-uninitialized)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Format 1 leaves out the times of the files. The Qt for Windows has no Zstandard.
set(CMAKE_AUTORCC_OPTIONS --format-version 1 --compress-algo zlib)

if(WIN32)
    add_link_options(-Wl,--no-insert-timestamp) # the same bytes at any time
elseif(CMAKE_BUILD_TYPE STREQUAL Release)
    # Hardening as in Debian's own packages.
    include(CheckPIESupported)
    check_pie_supported()
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat-security)
    add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()
if(CMAKE_BUILD_TYPE STREQUAL Release)
    # The same bytes from any folder.
    add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
endif()

if(ALEMBRA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(ALEMBRA_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
endif()
if(ALEMBRA_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()

# One precompiled set of headers for all targets halves the time to compile. It also hides a missing #include; the presets
# "debug" and "lint" build without it and find that.
if(ALEMBRA_PRECOMPILE)
    # Without these settings ccache refuses files that use the headers, or reads their 170 MB for each file.
    list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros
         CCACHE_INODECACHE=1)
    # GCC 12 crashes in this pass on some files.
    add_compile_options(-fno-ipa-cp)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp" CONTENT "")
    add_library(precompiled STATIC "${CMAKE_BINARY_DIR}/precompiled.cpp")
    # Only the include folders: a target that links less of Qt has fewer definitions than the headers would have.
    foreach(module Core Gui Widgets)
        target_include_directories(precompiled SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_link_libraries(precompiled PRIVATE Qt6::Platform)
    target_compile_definitions(precompiled PRIVATE $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG>)
    set_target_properties(precompiled PROPERTIES POSITION_INDEPENDENT_CODE ON AUTOMOC OFF)
    target_precompile_headers(precompiled PRIVATE
        <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span>
        <QAbstractItemView> <QApplication> <QComboBox> <QDir> <QFile> <QGridLayout> <QHash> <QKeyEvent> <QLabel>
        <QLineEdit> <QPainter> <QPushButton> <QRegularExpression>)
endif()
function(alembra_precompile name)
    if(TARGET precompiled)
        target_precompile_headers(${name} REUSE_FROM precompiled)
    endif()
endfunction()

# alembra_library(<name> SOURCES <files> LINK <targets>): a static library; sources are included by
# "<folder>/<file>" from the root.
function(alembra_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    alembra_precompile(${name})
    set_property(GLOBAL APPEND PROPERTY ALEMBRA_LIBRARIES ${name})
    get_property(with_widgets GLOBAL PROPERTY ALEMBRA_WITH_WIDGETS)
    foreach(target IN LISTS ARG_LINK)
        if(target STREQUAL Qt6::Widgets OR target IN_LIST with_widgets)
            set_property(GLOBAL APPEND PROPERTY ALEMBRA_WITH_WIDGETS ${name})
        endif()
    endforeach()
endfunction()

# alembra_list_widget_free(<file>): writes a line "<library> <folder>/<source>" for each source of the libraries so far
# that link no widgets, directly or through another. tools/coverage reads it.
function(alembra_list_widget_free file)
    get_property(libraries GLOBAL PROPERTY ALEMBRA_LIBRARIES)
    get_property(with_widgets GLOBAL PROPERTY ALEMBRA_WITH_WIDGETS)
    list(REMOVE_ITEM libraries ${with_widgets})
    set(lines)
    foreach(library IN LISTS libraries)
        get_target_property(folder ${library} SOURCE_DIR)
        get_target_property(sources ${library} SOURCES)
        list(TRANSFORM sources PREPEND "${library} ${folder}/")
        list(APPEND lines ${sources})
    endforeach()
    string(REPLACE "${PROJECT_SOURCE_DIR}/" "" lines "${lines}")
    list(JOIN lines "\n" lines)
    file(WRITE "${file}" "${lines}\n")
endfunction()

# alembra_draw_icons(<variable> <sizes> <svg>...): the icons drawn into the build folder; <variable> gets their
# files, by drawing and by size. See tools/draw_icons.
function(alembra_draw_icons variable sizes)
    set(files)
    foreach(icon IN LISTS ARGN)
        cmake_path(GET icon STEM LAST_ONLY name)
        foreach(size IN LISTS sizes)
            list(APPEND files "${CMAKE_CURRENT_BINARY_DIR}/${name}-${size}.png")
        endforeach()
    endforeach()
    list(JOIN sizes "," sizes)
    add_custom_command(
        OUTPUT ${files}
        COMMAND "${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0
                $<TARGET_FILE:draw_icons> "${CMAKE_CURRENT_BINARY_DIR}" ${sizes} ${ARGN}
        DEPENDS draw_icons ${ARGN}
        COMMENT "Drawing icons"
        VERBATIM)
    set(${variable} ${files} PARENT_SCOPE)
endfunction()

# alembra_test_program(<name> SOURCES <files> LINK <targets>): a Qt test program; each <class>_test.cpp includes
# "<class>_test.moc". Without a <name>.cpp that has a main() of its own, the classes are TestClass<...> and share one.
function(alembra_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    if(NOT "${name}.cpp" IN_LIST ARG_SOURCES)
        list(APPEND ARG_SOURCES "${PROJECT_SOURCE_DIR}/tests/support/testmain.cpp")
    endif()
    add_executable(${name} ${ARG_SOURCES})
    # AUTOMOC takes three steps for this one, and a second for each test.
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    foreach(source IN LISTS ARG_SOURCES)
        if(source MATCHES "^(.*_test)\\.cpp$")
            set(moc "${CMAKE_CURRENT_BINARY_DIR}/${CMAKE_MATCH_1}.moc")
            qt_generate_moc(${source} "${moc}" TARGET ${name})
            target_sources(${name} PRIVATE "${moc}")
        endif()
    endforeach()
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    target_compile_definitions(${name} PRIVATE ALEMBRA_FOLDER="${ALEMBRA_FOLDER}"
                                               ALEMBRA_SOURCE="${PROJECT_SOURCE_DIR}")
    alembra_precompile(${name})
endfunction()

# alembra_test(<name> SOURCES <files> LINK <targets>): such a program as a test, run offscreen in the C locale, away from
# the settings of who runs it.
function(alembra_test name)
    alembra_test_program(${name} ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
                         "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QTEST_FUNCTION_TIMEOUT=240000;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/settings")
endfunction()

# alembra_test_part(<name> <program> <environment> <command>...): a test that runs some classes of a test program. The
# program is built by that name, too.
function(alembra_test_part name program environment)
    add_test(NAME ${name} COMMAND ${ARGN})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT
                         "${environment};LC_ALL=C.UTF-8;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/settings")
    string(REGEX REPLACE "_[0-9.]+$" "" target ${name})
    if(NOT TARGET ${target})
        add_custom_target(${target} DEPENDS ${program})
    endif()
endfunction()
