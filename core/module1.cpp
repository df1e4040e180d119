#include "core/module1.h"

#include "core/buildsettings.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

static void initResource()
{
    Q_INIT_RESOURCE(program);
}

namespace {

constexpr int LastSlotOfTheFirstRelease = 89;

QString optionsFile(const QString &folder)
{
    return folder + u"/options_uk.ini"_s;
}

} // namespace

QString Module1::ReadOptions(const QString &request, const QString &folder)
{
    AppFolder = folder;
    if (request == u"opt") {
        OptionSlots.read(optionsFile(AppFolder));
        addNewOptions();
    }
    return {};
}

// No release delivers fewer values than the first. A shorter file beside the executable is a damaged one, not
// an older one: it stays as short as it is.
void Module1::addNewOptions()
{
    const bool isUsers = !ShippedFolder.isEmpty();
    if (!isUsers && OptionSlots.lastIndex() < LastSlotOfTheFirstRelease)
        return;
    initResource();
    ::OptionSlots delivered;
    delivered.read(optionsFile(isUsers ? ShippedFolder : u":/delivered"_s));
    OptionSlots.addMissing(delivered);
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
