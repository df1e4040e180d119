#include "core/module1.h"

#include "core/buildsettings.h"

#include <QFileInfo>

namespace {

QString optionsFile(const QString &folder)
{
    return folder + QStringLiteral("/options_uk.ini");
}

} // namespace

QString Module1::ReadOptions(const QString &request, const QString &folder)
{
    AppFolder = folder;
    if (request == QLatin1StringView("opt"))
        OptionSlots.read(optionsFile(AppFolder));
    return {};
}

void Module1::WriteOptions() const
{
    OptionSlots.write(optionsFile(AppFolder));
}

const QString &Module1::folderOf(const QString &file) const
{
    const bool isUsers = ShippedFolder.isEmpty() || QFileInfo::exists(AppFolder + QLatin1Char('/') + file);
    return isUsers ? AppFolder : ShippedFolder;
}

QString Module1::version()
{
    return QStringLiteral("%1.%2.%3")
        .arg(BuildSettings::VersionMajor)
        .arg(BuildSettings::VersionMinor)
        .arg(BuildSettings::VersionRevision);
}
