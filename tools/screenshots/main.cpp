#include "app/form1.h"
#include "app/program.h"
#include "widgets/picturebox.h"
#include "widgets/qtdesktop.h"
#include "widgets/rowlistview.h"
#include "widgets/sidewindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QTabBar>
#include <QTimer>
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

// Runs the program, walks through its panes and windows and saves a picture of each:
// screenshots <program folder> <folder for the pictures> [light|dark]
// Without a palette, only the pictures that are already in the folder are taken anew: those of the docs or of
// the help.

namespace {

/// A picture: the command that shows the pane or window, and the control that is clicked or, with a tab,
/// selected there, or the entry of the menu. If that opens a side window, the picture is of the window. With
/// parts, there is a second picture, "<file>-parts", for the help: small, with numbers at these controls.
struct Shot
{
    const char *file;
    int command;
    const char *control = nullptr;
    int item = 0;
    const char *parts = nullptr; ///< names, separated by blanks
    const char *typed = nullptr; ///< into the field with the focus of the side window
};

constexpr Shot Shots[] = {
    {"elements", 1108, "Command7(25)", 0,
     "Command7(0) ReyFrame1 ReyFrame2 imgato cmdpre(1) cmdhelp Command9"},
    {"elements-find", 1121},
    {"search", 1108, "actSearchAll", 0, nullptr, "acetic acid"},
    {"captions", 1108, "cmdhelp"},
    {"crystal", 1108, "Command9"},
    {"zoom", 1108, "imgato"},
    {"solvents", 1119, nullptr, 0, "TabStrip1 ListView1"},
    {"solvents-find", 1121},
    {"structure", 1119, "ListView1", 4},
    {"solvents-miscibility", 1116},
    {"solvents-nmr", 1115},
    {"solvents-mass", 1133},
    {"solvents-drying", 1118},
    {"solvents-cooling", 1117},
    {"solutions", 1113, nullptr, 0, "grdFrame8 grdFrame29 grdFrame1 grdFrame9 TabStrip2 Option4(1)"},
    {"solutions-redox", 1113, "TabStrip2", 2},
    {"biochemistry", 1109, nullptr, 0, "TabStrip9 grdFrame10 TabStrip8 grdFrame21 Comb2 Image8"},
    {"biochemistry-gels", 1109, "TabStrip8", 4},
    {"biochemistry-staining", 1109, "TabStrip8", 5},
    {"spectroscopy-proton", 1142, "ListView3(15)", 61, "Comboana ListView3(15) grdFrame19 Command1"},
    {"journals", 1142, "Command1"},
    {"spectroscopy-carbon", 1143, "ListView3(16)", 150},
    {"spectroscopy-ir", 1144, "ListView3(5)", 9},
    {"colour-code", 1144, "Command1"},
    {"spectroscopy-ir-table", 1145},
    {"calculations", 1120, nullptr, 0,
     "TabStrip4 TextBoxM5 Command8(0) cmdMolarMass TabStrip6 TabStrip5 TabStrip3 TextBoxM1 TextBoxM2"},
    {"calculations-dilution", 1120, "TabStrip4", 4},
    {"calculations-vapour", 1120, "TabStrip4", 6},
    {"reactions-unread", 1139},
    {"electronics-unread", 1141},
    {"electronics-read", 1141, "cmdReadTables(0)"},
    {"reactions", 1139, "ListView3(31)", 18, "ListView3(31) grdFrame35"},
    {"electronics-ring-1", 1141, "Combo2(4)", 5},
    {"electronics-ring-2", 1141, "Combo2(5)", 8},
    {"electronics-ring-3", 1141, "Combo2(7)", 5},
    {"electronics", 1141, "Combo2(8)", 2, "TabStrip11 Combo3 Combo2(5) tbm(7) Command2"},
    {"mnemonic", 1141, "Command2"},
    {"electronics-series", 1141, "TabStrip11", 2},
    {"electronics-eia96", 1141, "TabStrip11", 3},
    {"references", 1132},
    {"polymers", 1138},
    {"donate", 1131},
    {"about", 1122},
    {"options", 1058},
    {"options-export", 1058, "TabStrip1", 2},
    {"options-database", 1058, "TabStrip1", 3},
    {"options-statistics", 1058, "TabStrip1", 4},
};

SideWindow *sideWindow(const Form1 &form)
{
    for (SideWindow *each : form.findChildren<SideWindow *>()) {
        if (each->isVisible())
            return each;
    }
    return nullptr;
}

void touch(const QWidget &window, const Shot &shot)
{
    const QString name = QLatin1StringView(shot.control);
    if (auto *tabs = window.findChild<QTabBar *>(name))
        tabs->setCurrentIndex(shot.item - 1);
    else if (auto *button = window.findChild<QAbstractButton *>(name))
        button->click();
    else if (auto *choice = window.findChild<QComboBox *>(name))
        choice->setCurrentIndex(shot.item - 1);
    else if (auto *picture = window.findChild<PictureBox *>(name))
        Q_EMIT picture->clicked();
    else if (auto *list = window.findChild<RowListView *>(name)) {
        list->selectRow(shot.item - 1);
        Q_EMIT list->rowClicked(shot.item - 1);
        Q_EMIT list->rowDoubleClicked(shot.item - 1);
    } else if (auto *entry = window.findChild<QAction *>(name))
        entry->trigger();
    else
        qFatal("no control %s", shot.control);
}

bool isWanted(const QString &path)
{
    return QApplication::arguments().size() >= 4 || QFile::exists(path);
}

void save(const QImage &picture, const QString &path)
{
    if (!picture.save(path))
        qFatal("cannot write %s", qUtf8Printable(path));
}

void take(QWidget &window, const QString &path)
{
    if (!isWanted(path))
        return;
    QApplication::processEvents(); // the layout follows the texts
    save(window.grab().toImage(), path);
}

/// A number in a disc: in the top right corner of @p part, or beside it if it would cover its text.
void number(QPainter &painter, const QRect &part, int value)
{
    constexpr int Size = 18;
    constexpr int Tall = 60;
    constexpr int Wide = 120;
    QRect disc(part.right() - Size, part.top(), Size, Size);
    if (part.height() < Tall)
        disc.moveTop(part.center().y() - Size / 2);
    if (part.width() < Wide)
        disc.moveLeft(part.right() < painter.window().width() * 5 / 8 ? part.right() + 2
                                                                      : part.left() - Size - 2);
    painter.setPen(Qt::white);
    painter.setBrush(QColor(0xb0, 0x20, 0x20));
    painter.drawEllipse(disc);
    painter.drawText(disc, Qt::AlignCenter, QString::number(value));
}

/// With the 256 colours that it uses most: a third of the bytes.
QImage withFewColours(const QImage &picture)
{
    std::map<QRgb, int> uses;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++uses[picture.pixel(x, y)];
    }
    QList<QRgb> colours;
    for (const auto &[colour, count] : uses)
        colours << colour;
    std::stable_sort(colours.begin(), colours.end(), [&](QRgb a, QRgb b) { return uses[a] > uses[b]; });
    return picture.convertToFormat(QImage::Format_Indexed8, colours.mid(0, 256), Qt::ThresholdDither);
}

void takeNumbered(QWidget &window, const QString &parts, const QString &path)
{
    constexpr int Width = 640; // of a page of the help
    if (!isWanted(path))
        return;
    QImage picture = window.grab().toImage().scaledToWidth(Width, Qt::SmoothTransformation);
    const double scale = double(Width) / window.width();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = window.font();
    bold.setBold(true);
    bold.setPixelSize(12);
    painter.setFont(bold);
    int value = 0;
    for (const QString &name : parts.split(u' ')) {
        const auto *part = window.findChild<QWidget *>(name);
        if (!part || !part->isVisible())
            qFatal("no control %s", qUtf8Printable(name));
        const QPoint corner = part->mapTo(&window, QPoint());
        number(painter, {(QPointF(corner) * scale).toPoint(), part->size() * scale}, ++value);
    }
    painter.end();
    save(withFewColours(picture), path);
}

void walk(Form1 &form, const QDir &pictures)
{
    form.resize(form.sizeHint()); // whatever the display: the pictures are not of the screen
    for (const Shot &shot : Shots) {
        form.executeCommand(shot.command);
        const auto shown = [&form]() -> QWidget & {
            SideWindow *window = sideWindow(form);
            return window ? *window : static_cast<QWidget &>(form);
        };
        if (shot.control)
            touch(shown(), shot);
        if (auto *field = qobject_cast<QLineEdit *>(shown().focusWidget()); field && shot.typed)
            field->setText(QLatin1StringView(shot.typed));
        take(shown(), pictures.filePath(QLatin1StringView(shot.file) + u".png"_s));
        if (shot.parts)
            takeNumbered(form, shot.parts, pictures.filePath(QLatin1StringView(shot.file) + u"-parts.png"_s));
        if (SideWindow *window = sideWindow(form))
            window->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
        qFatal("usage: screenshots <program folder> <folder for the pictures> [light|dark]");
    if (arguments.value(3) == u"dark"_s)
        QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2a, 0x2a)));
    const QDir pictures(arguments[2]);

    // The splash runs an event loop before the load is complete.
    QTimer started;
    QObject::connect(&started, &QTimer::timeout, &application, [&] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"frmload"_s)
                take(*window, pictures.filePath(u"splash.png"_s));
        }
        Form1 *form = mainWindow();
        if (!form || !form->isVisible())
            return;
        if (auto *tip = form->findChild<QWidget *>(u"frmTip"_s)) {
            take(*tip, pictures.filePath(u"tip.png"_s));
            tip->close();
        }
        if (!form->isEnabled())
            return;
        started.stop();
        walk(*form, pictures);
    });
    started.start(10); // the splash pauses for 50
    QtDesktop desktop;
    return Main(desktop, QDir(arguments[1]).absolutePath());
}
