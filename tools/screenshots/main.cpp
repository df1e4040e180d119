#include "app/form1.h"
#include "app/program.h"
#include "core/qtdesktop.h"
#include "core/sidewindow.h"
#include "store/rowlistview.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QTabBar>
#include <QTimer>

// Runs the program, walks through its panes and saves a picture of the main window at each:
// screenshots <program folder> <folder for the pictures> [dark]

namespace {

/// A picture: the command that shows the pane, and the control that is clicked or, with a tab, selected
/// there.
struct Shot
{
    const char *file;
    int command;
    const char *control = nullptr;
    int item = 0;
};

constexpr Shot Shots[] = {
    {"elements", 1108, "Command7(25)"},
    {"solvents", 1119},
    {"solvents-miscibility", 1116},
    {"solvents-nmr", 1115},
    {"solvents-mass", 1133},
    {"solvents-drying", 1118},
    {"solvents-cooling", 1117},
    {"solutions", 1113},
    {"solutions-redox", 1113, "TabStrip2", 2},
    {"biochemistry", 1109},
    {"biochemistry-gels", 1109, "TabStrip8", 4},
    {"spectroscopy-proton", 1142, "ListView3(15)", 61},
    {"spectroscopy-carbon", 1143, "ListView3(16)", 150},
    {"spectroscopy-ir", 1144, "ListView3(5)", 9},
    {"spectroscopy-ir-table", 1145},
    {"calculations", 1120},
    {"calculations-dilution", 1120, "TabStrip4", 4},
    {"reactions", 1139},
    {"electronics", 1141},
    {"references", 1132},
    {"polymers", 1138},
    {"donate", 1131},
};

void touch(Form1 &form, const Shot &shot)
{
    const QString name = QLatin1StringView(shot.control);
    if (auto *tabs = form.findChild<QTabBar *>(name))
        tabs->setCurrentIndex(shot.item - 1);
    else if (auto *button = form.findChild<QAbstractButton *>(name))
        button->click();
    else if (auto *list = form.findChild<RowListView *>(name)) {
        list->selectRow(shot.item - 1);
        Q_EMIT list->rowClicked(shot.item - 1);
    } else
        qFatal("no control %s", shot.control);
}

void walk(Form1 &form, const QDir &pictures)
{
    for (const Shot &shot : Shots) {
        form.executeCommand(shot.command);
        if (shot.control)
            touch(form, shot);
        QApplication::processEvents(); // the layout follows the texts
        const QString path = pictures.filePath(QLatin1StringView(shot.file) + QStringLiteral(".png"));
        if (!form.grab().save(path))
            qFatal("cannot write %s", qUtf8Printable(path));
    }
    form.executeCommand(1005);
}

Form1 *mainWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *form = qobject_cast<Form1 *>(window))
            return form;
    }
    return nullptr;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3)
        qFatal("usage: screenshots <program folder> <folder for the pictures> [dark]");
    if (arguments.value(3) == QStringLiteral("dark"))
        QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2a, 0x2a)));

    // The program's own event loop runs once before the load is through: the pause of the splash.
    QTimer started;
    QObject::connect(&started, &QTimer::timeout, &application, [&] {
        Form1 *form = mainWindow();
        if (!form || !form->isVisible())
            return;
        if (auto *tip = form->findChild<QWidget *>(QStringLiteral("frmTip")))
            tip->close();
        if (!form->isEnabled())
            return;
        started.stop();
        walk(*form, QDir(arguments[2]));
    });
    started.start(100);
    QtDesktop desktop;
    return Main(desktop, QDir(arguments[1]).absolutePath());
}
