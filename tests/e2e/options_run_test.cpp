#include "app/optionshost.h"
#include "options/formoptions.h"
#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/qtdesktop.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

/// The options dialog in whole runs of the program.
class OptionsRunTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ProgramFolder>(); }

    void itIsLoadedHiddenAtStartAndEachOpeningLoadsAnew()
    {
        m_folder->setOption(53, "1");
        run(*m_folder, [&](Form1 &form) {
            const Formoptions *loaded = dialog(form);
            QVERIFY(loaded && !loaded->isVisible() && form.isEnabled());
            QCOMPARE(loaded->y(), 667); // 10000 twips

            form.executeCommand(1058);
            QCOMPARE(dialog(form), loaded); // the first opening shows the one made at start
            QVERIFY(loaded->isVisible() && !form.isEnabled());
            QVERIFY(loaded->screen()->geometry().contains(loaded->geometry()));
            QVERIFY((loaded->geometry().center() - form.geometry().center()).manhattanLength() < 60);
            control<QCheckBox>(form, "Check1(6)").setChecked(false);
            press(form, "XpButton2");
            QVERIFY(!dialog(form));
            form.executeCommand(1058);
            QVERIFY(control<QCheckBox>(form, "Check1(6)").isChecked());
        });
        QCOMPARE(m_desktop.boxes.size(), 0);
    }

    void okChangesTheMainWindowAndTheFile()
    {
        m_folder->setOption(54, "0");
        m_folder->setOption(81, "0");
        m_folder->setOption(89, "1");
        run(*m_folder, [&](Form1 &form) {
            const auto *bar = form.findChild<QToolBar *>();
            QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
            form.executeCommand(1144); // the infrared charts
            form.executeCommand(1120);
            auto &field = get<QLineEdit>(form, "TextBoxM7(0)");
            field.setText("12");
            const auto &arrow = get<QToolButton>(form, "cmdpre(0)");
            QVERIFY(!arrow.toolTip().isEmpty());

            form.executeCommand(1058);
            control<QComboBox>(form, "Combo2").setCurrentIndex(4);
            control<QCheckBox>(form, "Check1(2)").setChecked(false);
            control<QCheckBox>(form, "Check1(7)").setChecked(true);
            control<QRadioButton>(form, "Option1(2)").click();
            press(form, "XPButton1");

            QVERIFY(!dialog(form) && form.isEnabled());
            QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
            QCOMPARE(field.text() + arrow.toolTip(), QString());
            QCOMPARE(get<QLabel>(get(form, "frmana"), "Label25").text(), "/ micrometer");
        });
        const QList<QByteArray> written = m_folder->read("options_uk.ini").split('\n');
        QCOMPARE((QByteArrayList{written[54], written[57], written[81]}),
                 (QByteArrayList{"4\r", "0\r", "1\r"}));
    }

    void tipAndDialogShareTheirBox()
    {
        m_folder->setOption(56, "1");
        run(*m_folder, [&](Form1 &form) {
            auto &wish = get<QCheckBox>(get(form, "frmTip"), "chkLoadTipsAtStartup");
            QVERIFY(wish.isVisible());
            wish.click();
            form.executeCommand(1058);
            QVERIFY(dialog(form)->isEnabled());
            QVERIFY(!control<QCheckBox>(form, "Check1(1)").isChecked());
            wish.click();
            QVERIFY(control<QCheckBox>(form, "Check1(1)").isChecked());
        });
    }

    void aMissingDatabaseEndsTheProgram()
    {
        const QString end = outcome(*m_folder, [&](Form1 &form) {
            form.executeCommand(1058);
            press(form, "XpButton2");
            QVERIFY(QFile::remove(m_folder->path("Data/Database_uk.mdb")));
            form.executeCommand(1058);
        });
        QVERIFY(m_cameUp);
        QCOMPARE(end, "report 53");
    }

    // Closed from outside while a handler of its own waits for a dialog, as on the way into the tray.
    void aWindowOutlivesItsDialog()
    {
        for (const char *button : {"Command1", "Command2", "cmdSysInfo"}) { // save dialog, question, message
            init();
            QtDesktop desktop;
            const auto walk = [button](Form1 &form) {
                form.executeCommand(button == QByteArray("cmdSysInfo") ? 1122 : 1058);
                const QPointer<QWidget> opened = Walk::sideWindow(form);
                bool waited = false;
                QTimer::singleShot(0, opened, [&] {
                    waited = QApplication::activeModalWidget();
                    QVERIFY(!opened->close());
                });
                get<QPushButton>(*opened, button).click();
                QVERIFY(waited && opened && !QApplication::activeModalWidget());
                QTRY_VERIFY(!opened);
                QVERIFY(form.isEnabled());
            };
            QCOMPARE(run(m_folder->root(), {}, desktop, walk), 0);
        }
    }

private:
    static Formoptions *dialog(const Form1 &form) { return form.findChild<Formoptions *>("Formoptions"); }

    // A control of the dialog, not one of the same name of the main window.
    template<class W>
    static W &control(const Form1 &form, const char *name)
    {
        return get<W>(*dialog(form), name);
    }

    static void press(const Form1 &form, const char *button)
    {
        control<QPushButton>(form, button).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::unique_ptr<ProgramFolder> m_folder;
};

QTEST_MAIN(OptionsRunTest)
#include "options_run_test.moc"
