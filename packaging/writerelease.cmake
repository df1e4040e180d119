# Writes the stamp by which the launcher sees that something else is installed than a user's program folder was made
# from: the version, and a hash of everything, because a table may be corrected without a new version.

set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
file(GLOB_RECURSE files RELATIVE "${root}" "${root}/lib/alembra/*" "${root}/share/alembra/*")
list(REMOVE_ITEM files share/alembra/release)
list(SORT files)
set(hashes "")
foreach(file IN LISTS files)
    file(SHA256 "${root}/${file}" hash)
    string(APPEND hashes "${hash} ${file}\n")
endforeach()
string(SHA256 hash "${hashes}")
string(SUBSTRING "${hash}" 0 16 hash)
file(WRITE "${root}/share/alembra/release" "${VERSION} ${hash}\n")
