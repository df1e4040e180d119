# Puts the copyright notice of each Debian package that a carried library comes from into the folder licences.

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/alembra")
file(GLOB_RECURSE files RELATIVE "${folder}" "${folder}/lib/*.so*" "${folder}/plugins/*.so")
list(TRANSFORM files REPLACE "^lib/" "*-linux-gnu/")
list(TRANSFORM files REPLACE "^plugins/" "*/plugins/")
execute_process(COMMAND dpkg-query --search ${files} OUTPUT_VARIABLE owners ERROR_QUIET)
string(REGEX MATCHALL "[^\n:]+:[^\n]+" owners "${owners}") # libqt6core6:amd64: /usr/lib/…
list(TRANSFORM owners REPLACE ":.*" "")
list(REMOVE_DUPLICATES owners)
if(NOT owners)
    message(WARNING "dpkg does not know where the carried libraries come from: they are without their licences")
endif()
file(MAKE_DIRECTORY "${folder}/licences")
foreach(package IN LISTS owners)
    file(COPY_FILE "/usr/share/doc/${package}/copyright" "${folder}/licences/${package}.txt")
endforeach()
