#include "reports/savedialog.h"

#include "core/filelock.h"
#include "core/module1.h"
#include "core/platform.h"

#include <QFileInfo>
#include <algorithm>

namespace {

/// Sets `ProbedLength` of @p module to the length of the file in bytes, 0 if there is no such file.
void ProbeFileLength(const QString &path, Module1 &module)
{
    const QFileInfo info(path);
    module.ProbedLength = info.isFile() ? info.size() : 0;
}

} // namespace

void SaveDialog::choose(const std::function<std::optional<QString>()> &offeredName, int questionStyle)
{
    do {
        m_fileName = offeredName().value_or(m_fileName);
        m_fileName =
            withSuffix(m_desktop.saveFile({m_fileName, m_module.AppFolder, m_kind.name, m_kind.globs}));
        ProbeFileLength(m_fileName, m_module);
    } while (m_module.ProbedLength != 0 && !mayReplace(questionStyle));
}

QString SaveDialog::withSuffix(const QString &path) const
{
    const auto suffixOf = [](const QString &glob) { return glob.mid(1); };
    const bool complete = std::any_of(m_kind.globs.begin(), m_kind.globs.end(),
                                      [&](const QString &glob) { return path.endsWith(suffixOf(glob)); });
    return complete ? path : path + suffixOf(m_kind.globs.constFirst());
}

bool SaveDialog::mayReplace(int questionStyle)
{
    const bool isLocked = FileLock::forbids(FileLock::Access::Write, m_fileName);
    const int attributes = isLocked ? 0 : Platform::fileAttributes(m_fileName);
    const QString question = "The file '" + m_fileName + "' already exists. Replace existing file?";
    if (m_desktop.messageBox(question, questionStyle) != Desktop::Yes)
        return false;

    // Compared as whole numbers: a file without the archive bit counts as in use.
    switch (attributes) {
    case Platform::ReadOnly + Platform::Archive:
        m_desktop.messageBox(readOnlyMessage(m_fileName), Desktop::Warning);
        return false;
    case 0:
    case Platform::ReadOnly:
        m_desktop.messageBox("Impossible to save '" + m_fileName +
                                 "'. The file is in use. Save it with a different name or in a different "
                                 "folder.",
                             Desktop::Warning);
        return false;
    default:
        return true;
    }
}

QString SaveDialog::readOnlyMessage(const QString &path)
{
    return "Impossible to save '" + path +
           "'. The file already exists and has a read-only attribute. Save it with a different name or in "
           "different folder.";
}
