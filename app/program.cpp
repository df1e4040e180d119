#include "app/program.h"

#include "app/form1.h"
#include "app/frmload.h"
#include "app/optionshost.h"
#include "app/session.h"
#include "app/singleinstance.h"
#include "app/userfolder.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "sidewindows/frmtip.h"
#include "store/databaseconnection.h"
#include "store/databasegaps.h"
#include "store/databaserecovery.h"
#include "store/datastore.h"
#include "store/latertables.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "widgets/accessibleroles.h"
#include "widgets/icons.h"
#include "widgets/modaldialogs.h"
#include "widgets/smallscale.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// An instance that exists but does not answer ends the process.
bool previousInstanceAnswers(const SingleInstance &instance, Desktop &desktop)
{
    const SingleInstance::Previous previous = instance.activatePrevious();
    if (previous == SingleInstance::Previous::Silent)
        desktop.endWithMessage(u"Alembra is already running, but it does not answer. Wait a moment and start "
                               u"it again, or end the "
                               "process Alembra_uk first."_s);
    return previous == SingleInstance::Previous::Answered;
}

/// Compares the user's database with what this program reads. True if the user wants the original instead. @p
/// isNewsOfOriginal: there is a new one, and the changed database stayed.
bool userWantsOriginal(Desktop &desktop, const JetFile &database, bool isNewsOfOriginal)
{
    constexpr int MaxGaps = 10; // a box as high as the screen has no buttons to click on
    QStringList gaps = DatabaseGaps::missing(database);
    if (isNewsOfOriginal)
        gaps += DatabaseGaps::otherRowCounts(database);
    if (gaps.size() > MaxGaps)
        gaps = gaps.first(MaxGaps) << u"There are more differences."_s;
    if (gaps.isEmpty() && isNewsOfOriginal)
        desktop.messageBox(u"There is a new database. Yours was changed, so it stays as it is.\n\nTo use the "
                           "new one, choose Restore in the options, on the tab Database. Save a copy of "
                           "yours first."_s,
                           Desktop::Information);
    return !gaps.isEmpty() &&
           desktop.messageBox(
               u"Your database was made for another version of Alembra.\n\n"_s + gaps.join(u'\n') +
                   u"\n\nIf a column is missing, its list is empty; if a table is missing, the program ends. "
                   "If the number of rows differs, some rows are in the wrong list.\n\nDo you want to use "
                   "the "
                   "database of this version? Yours stays in the folder Data, as Database_uk_old.mdb or with "
                   "a number after \"old\"."_s,
               Desktop::Warning + Desktop::YesNo) == Desktop::Yes;
}

} // namespace

int Main(Desktop &desktop, const QString &appFolder, const QString &shippedFolder, const Scale &scale,
         const QJsonObject &session)
{
    QApplication::setWindowIcon(Icons::program());
    SmallScale::install();
    if (!QDir().mkpath(appFolder))
        throw RuntimeError(ErrorNumber::PathAccess, appFolder);
    SingleInstance instance(appFolder);
    if (previousInstanceAnswers(instance, desktop))
        return 0;
    instance.listen();
    Form1 *complete = nullptr;
    QObject::connect(&instance, &SingleInstance::activated, &instance, [&complete] {
        if (complete)
            complete->restoreAndRaise();
        else
            ModalDialogs::raise(); // a question during the start
    });
    const bool hasUserFolder = !shippedFolder.isEmpty();
    const bool isNewsOfOriginal = hasUserFolder && UserFolder::renew(appFolder, shippedFolder);

    QApplication::setKeyboardInputInterval(1000); // time between the letters of a name in a list
    AccessibleRoles::install();
    Module1 module;
    module.AppFolder = appFolder;
    module.ShippedFolder = shippedFolder;
    DataStore store;
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, appFolder);
    recovery.ConnectDatabase();
    if (hasUserFolder && userWantsOriginal(desktop, connection.file(), isNewsOfOriginal)) {
        recovery.DisconnectDatabase();
        UserFolder::replaceDatabase(appFolder);
        recovery.ConnectDatabase();
    }

    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [&] { recovery.offerAfterMissingTable(); });
    LaterTables laterTables(store, loader, recovery);
    frmload splash;
    Form1 form(module, store, laterTables, desktop, scale);
    endOnError(desktop, [&] { // inside Main, so that errors are reported above the splash
        form.load(splash, loader);
        form.show();
        if (session.isEmpty() && module.OptionSlots(Slot::TipAtStart).equals(1))
            openTip(
                module, desktop, [&form](bool wanted) { form.options().setTipAtStart(wanted); }, form);
        recovery.DisconnectDatabase();
        form.options().loadHidden();
    });
    splash.close();
    form.showStartModule();
    if (!session.isEmpty())
        ignoringErrors([&] { Session::restore(session, form, laterTables); });
    complete = &form;
    return QApplication::exec();
}
