#include "app/optionshost.h"
#include "options/formoptions.h"
#include "tests/support/wholerun.h"
#include "widgets/qtdesktop.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

/// The options dialog in whole runs of the program.
class OptionsRunTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void itIsLoadedHiddenAtStartAndOpensInTheMiddle();
    void okChangesTheMainWindowAndTheFile();
    void okPutsTheInfraredScaleOnShow();
    void eachOpeningLoadsAnew();
    void tipAndDialogShareTheirBox();
    void aMissingDatabaseEndsTheProgram();
    void aWindowOutlivesItsDialog_data();
    void aWindowOutlivesItsDialog();

private:
    static Formoptions *dialog(const Form1 &form)
    {
        return form.findChild<Formoptions *>(QStringLiteral("Formoptions"));
    }

    // A control of the dialog, not one of the same name of the main window.
    template<class W>
    static W &control(const Form1 &form, const char *name)
    {
        return *dialog(form)->findChild<W *>(QLatin1StringView(name));
    }

    static void press(const Form1 &form, const char *button)
    {
        control<QPushButton>(form, button).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

void OptionsRunTest::itIsLoadedHiddenAtStartAndOpensInTheMiddle()
{
    const ProgramFolder folder;
    folder.setOption(56, "0"); // no tip
    QCOMPARE(run(folder,
                 [&](Form1 &form) {
                     const Formoptions *loaded = dialog(form);
                     QVERIFY(loaded && !loaded->isVisible());
                     QCOMPARE(loaded->y(), 667); // 10000 twips
                     QVERIFY(form.isEnabled());

                     form.executeCommand(1058);
                     QCOMPARE(dialog(form), loaded); // the first opening shows the one made at start
                     QVERIFY(loaded->isVisible() && !form.isEnabled());
                     QVERIFY(loaded->screen()->geometry().contains(loaded->geometry()));
                     QVERIFY((loaded->geometry().center() - form.geometry().center()).manhattanLength() < 60);
                 }),
             0);
    QCOMPARE(m_desktop.boxes.size(), 0);
}

void OptionsRunTest::okChangesTheMainWindowAndTheFile()
{
    const ProgramFolder folder;
    folder.setOption(56, "0"); // no tip
    folder.setOption(54, "0");
    folder.setOption(81, "0");
    run(folder, [&](Form1 &form) {
        const auto *bar = form.findChild<QToolBar *>();
        QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
        form.executeCommand(1120);
        auto *field = form.findChild<QLineEdit *>(QStringLiteral("TextBoxM7(0)"));
        QVERIFY(field);
        field->setText(QStringLiteral("12"));
        const auto *arrow = form.findChild<QToolButton *>(QStringLiteral("cmdpre(0)"));
        QVERIFY(!arrow->toolTip().isEmpty());

        form.executeCommand(1058);
        control<QComboBox>(form, "Combo2").setCurrentIndex(4);
        control<QCheckBox>(form, "Check1(2)").setChecked(false);
        control<QCheckBox>(form, "Check1(7)").setChecked(true);
        press(form, "XPButton1");

        QVERIFY(!dialog(form));
        QVERIFY(form.isEnabled());
        QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(field->text(), QString());
        QVERIFY(arrow->toolTip().isEmpty());
    });
    const QList<QByteArray> written = folder.read(QStringLiteral("options_uk.ini")).split('\n');
    QCOMPARE(written[54], QByteArray("4\r"));
    QCOMPARE(written[57], QByteArray("0\r"));
    QCOMPARE(written[81], QByteArray("1\r"));
}

void OptionsRunTest::okPutsTheInfraredScaleOnShow()
{
    const ProgramFolder folder;
    folder.setOption(56, "0");
    folder.setOption(89, "1");
    run(folder, [&](Form1 &form) {
        const auto label = [&](const char *name) {
            return form.findChild<QWidget *>(QStringLiteral("frmana"))
                ->findChild<QLabel *>(QLatin1StringView(name));
        };
        form.executeCommand(1145); // the table: captions and places change out of sight
        form.executeCommand(1058);
        control<QRadioButton>(form, "Option1(2)").click();
        press(form, "XPButton1");
        QCOMPARE(label("Label25")->text(), QStringLiteral("/ micrometer"));
        QVERIFY(label("Label25")->isHidden());
        QCOMPARE(label("Label26")->x(), 287); // 4305 twips

        form.executeCommand(1144);
        form.executeCommand(1058);
        control<QRadioButton>(form, "Option1(3)").click();
        press(form, "XPButton1");
        QCOMPARE(label("Label25")->text(), QStringLiteral("/ cm-1"));
        QVERIFY(!label("Label25")->isHidden());
        QCOMPARE(label("Label26")->x(), 307); // 4605 twips
    });
}

void OptionsRunTest::eachOpeningLoadsAnew()
{
    const ProgramFolder folder;
    folder.setOption(56, "0"); // no tip
    folder.setOption(53, "1");
    run(folder, [&](Form1 &form) {
        form.executeCommand(1058);
        control<QCheckBox>(form, "Check1(6)").setChecked(false);
        press(form, "XpButton2");
        QVERIFY(!dialog(form));
        form.executeCommand(1058);
        QVERIFY(control<QCheckBox>(form, "Check1(6)").isChecked());
        form.options().setTipAtStart(true);
        QVERIFY(control<QCheckBox>(form, "Check1(1)").isChecked());
    });
}

void OptionsRunTest::tipAndDialogShareTheirBox()
{
    const ProgramFolder folder;
    folder.setOption(56, "1");
    run(folder, [&](Form1 &form) {
        auto *tip = form.findChild<QWidget *>(QStringLiteral("frmTip"));
        QVERIFY(tip && tip->isVisible());
        auto *wish = tip->findChild<QCheckBox *>(QStringLiteral("chkLoadTipsAtStartup"));
        wish->click();
        form.executeCommand(1058);
        QVERIFY(dialog(form)->isEnabled());
        QVERIFY(!control<QCheckBox>(form, "Check1(1)").isChecked());
        wish->click();
        QVERIFY(control<QCheckBox>(form, "Check1(1)").isChecked());
    });
}

void OptionsRunTest::aMissingDatabaseEndsTheProgram()
{
    const ProgramFolder folder;
    folder.setOption(56, "0"); // no tip
    bool ended = false;
    run(folder, [&](Form1 &form) {
        form.executeCommand(1058);
        press(form, "XpButton2");
        QVERIFY(QFile::remove(folder.path(QStringLiteral("Data/Database_uk.mdb"))));
        try {
            form.executeCommand(1058);
        } catch (const ProcessEnded &end) {
            ended = end.status == 1;
        }
    });
    QVERIFY(ended);
    QVERIFY(m_desktop.boxes.constLast().first.startsWith(QStringLiteral("Run-time error '53':")));
}

void OptionsRunTest::aWindowOutlivesItsDialog_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("button");
    QTest::newRow("save dialog") << 1058 << "Formoptions"
                                 << "Command1";
    QTest::newRow("question") << 1058 << "Formoptions"
                              << "Command2";
    QTest::newRow("message") << 1122 << "frmAbout"
                             << "cmdSysInfo";
}

// Closed from outside while a handler of its own waits for a dialog, as on the way into the tray.
void OptionsRunTest::aWindowOutlivesItsDialog()
{
    QFETCH(const int, command);
    QFETCH(const QString, window);
    QFETCH(const QString, button);
    const ProgramFolder folder;
    QtDesktop desktop;
    const auto walk = [&](Form1 &form) {
        form.executeCommand(command);
        const QPointer<QWidget> opened = form.findChild<SideWindow *>(window);
        bool waited = false;
        QTimer::singleShot(0, opened, [&] {
            waited = QApplication::activeModalWidget();
            QVERIFY(!opened->close());
        });
        opened->findChild<QPushButton *>(button)->click();
        QVERIFY(waited && opened && !QApplication::activeModalWidget());
        QTRY_VERIFY(!opened);
        QVERIFY(form.isEnabled());
    };
    QCOMPARE(run(folder.root(), {}, desktop, walk), 0);
}

QTEST_MAIN(OptionsRunTest)
#include "options_run_test.moc"
