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

namespace {

/// Whether another instance has taken over. One that exists but does not answer ends the process.
bool previousInstanceAnswers(const SingleInstance &instance, Desktop &desktop)
{
    switch (instance.activatePrevious()) {
    case SingleInstance::Previous::None:
        return false;
    case SingleInstance::Previous::Answered:
        return true;
    case SingleInstance::Previous::Silent:
        break;
    }
    desktop.endWithMessage(QStringLiteral("Alembra is already running, but it does not answer. Wait until it "
                                          "has finished its work, or end it, and start Alembra again."));
}

void renewUserFolder(Desktop &desktop, const QString &folder, const QString &shippedFolder)
{
    if (!UserFolder::renew(folder, shippedFolder))
        return;
    desktop.messageBox(
        QStringLiteral(
            "There is a new database. Yours was changed, so it stays as it is.\n\nTo use the new one, choose "
            "Restore in the options, on the tab Database. Save a copy of yours before."),
        Desktop::Information);
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
            ModalDialogs::raise(); // a question of the start
    });
    if (!shippedFolder.isEmpty())
        renewUserFolder(desktop, appFolder, shippedFolder);

    QApplication::setKeyboardInputInterval(1000); // names are typed into lists one letter after the other
    AccessibleRoles::install();
    Module1 module;
    module.AppFolder = appFolder;
    module.ShippedFolder = shippedFolder;
    DataStore store;
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, appFolder);
    recovery.ConnectDatabase();

    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [&] { recovery.offerAfterMissingTable(); });
    LaterTables laterTables(store, loader, recovery);
    frmload splash;
    Form1 form(module, store, laterTables, desktop, scale);
    endOnError(desktop, [&] { // here, so that a failure is reported while the splash is on the screen
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
