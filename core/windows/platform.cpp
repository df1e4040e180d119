#include "core/platform.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <array>
#include <windows.h>

int Platform::fileAttributes(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const DWORD attributes = GetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()));
    constexpr DWORD OfFiles =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    return attributes == INVALID_FILE_ATTRIBUTES ? 0 : int(attributes & OfFiles);
}

QString Platform::defaultFolder(const QString &program)
{
    // The attributes of a folder do not say who may write there, only a try does.
    QTemporaryFile trial(program + "/alembra-XXXXXX");
    const bool isInstalled = QFileInfo::exists(program + "/uninstall.exe");
    return trial.open() && !isInstalled
               ? program
               : QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/alembra";
}

QString Platform::socketPath(const QString &name)
{
    return name; // pipes are in no folder
}

void Platform::startAgain(char ** /*argv*/)
{
    int count = 0;
    wchar_t **arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::array<wchar_t, 0x8000> program{}; // the longest path
    GetModuleFileNameW(nullptr, program.data(), DWORD(program.size()));
    QStringList rest;
    for (int i = 1; i < count; ++i)
        rest << QString::fromWCharArray(arguments[i]);
    LocalFree(arguments);
    QProcess::startDetached(QString::fromWCharArray(program.data()), rest);
}
