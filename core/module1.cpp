#include "core/module1.h"

#include "core/buildsettings.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString optionsFile(const QString &folder)
{
    return folder + u"/options_uk.ini"_s;
}

} // namespace

QString Module1::ReadOptions(const QString &request, const QString &folder)
{
    AppFolder = folder;
    if (request == u"opt")
        OptionSlots.read(optionsFile(AppFolder));
    return {};
}

void Module1::WriteOptions() const
{
    OptionSlots.write(optionsFile(AppFolder));
}

const QString &Module1::folderOf(const QString &file) const
{
    const bool isUsers = ShippedFolder.isEmpty() || QFileInfo::exists(AppFolder + u'/' + file);
    return isUsers ? AppFolder : ShippedFolder;
}

QString Module1::version()
{
    return u"%1.%2.%3"_s.arg(BuildSettings::VersionMajor)
        .arg(BuildSettings::VersionMinor)
        .arg(BuildSettings::VersionRevision);
}
