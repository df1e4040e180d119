#pragma once

#include <QString>

/// What each system does in its own way. core/unix and core/windows implement this header and filelock.h; the
/// build takes one of them, so no source asks for the system.
namespace Platform {

/// Attributes of a file, numbered as Windows does.
inline constexpr int ReadOnly = 1;
inline constexpr int Archive = 32;

/// The attributes of the existing file at @p path. Unix has only the two above: `Archive` always, `ReadOnly`
/// if the permission bits do not let the owner write, whoever the user is.
int fileAttributes(const QString &path);

/// Where the user's files are if the command line names no folder: the folder @p program of the executable.
/// On Windows the user's local application data if the program may not write there or an installer owns it.
QString defaultFolder(const QString &program);

/// The place of a local socket or pipe that only this user's programs find.
QString socketPath(const QString &name);

/// Runs the program anew with the same arguments; call it at the end of main(). On Unix it replaces this
/// process.
void startAgain(char **argv);

} // namespace Platform
