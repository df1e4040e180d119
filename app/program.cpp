#include "app/program.h"

#include "app/form1.h"
#include "app/frmload.h"
#include "app/optionshost.h"
#include "app/singleinstance.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "sidewindows/frmtip.h"
#include "store/databaseconnection.h"
#include "store/databaserecovery.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"

#include <QApplication>

int Main(Desktop &desktop, const QString &appFolder)
{
    SingleInstance instance(appFolder);
    if (instance.activatePrevious())
        return 0;
    instance.listen();

    Module1 module;
    module.AppFolder = appFolder;
    DataStore store;
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, appFolder);
    recovery.ConnectDatabase();

    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [&] { recovery.offerAfterMissingTable(); });
    frmload splash;
    Form1 form(module, store, desktop);
    QObject::connect(&instance, &SingleInstance::activated, &form, &Form1::restoreAndRaise);
    form.load(splash, loader);
    form.show();

    if (module.OptionSlots(Slot::TipAtStart).equals(1))
        openTip(
            module, desktop, [&form](bool wanted) { form.options().setTipAtStart(wanted); }, form);
    recovery.DisconnectDatabase();
    form.options().loadHidden();
    splash.close();
    form.showStartModule();
    return QApplication::exec();
}
