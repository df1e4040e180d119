#include "core/filelock.h"

#include <QDir>
#include <QFileInfo>
#include <windows.h>

bool FileLock::forbids(Access access, const QString &path)
{
    if (!QFileInfo(path).isFile())
        return false;
    const QString native = QDir::toNativeSeparators(path);
    const DWORD wanted = access == Access::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t *>(native.utf16()), wanted,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION; // who opened it does not share it
    OVERLAPPED begin{};
    const DWORD kind = access == Access::Read ? 0 : LOCKFILE_EXCLUSIVE_LOCK;
    const bool taken = LockFileEx(file, kind | LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD, MAXDWORD, &begin);
    const bool forbidden = !taken && GetLastError() == ERROR_LOCK_VIOLATION;
    CloseHandle(file); // releases the lock
    return forbidden;
}
