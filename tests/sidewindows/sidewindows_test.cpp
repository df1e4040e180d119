#include "core/buildsettings.h"
#include "core/module1.h"
#include "sidewindows/frmabout.h"
#include "sidewindows/frmtip.h"
#include "sidewindows/legends.h"
#include "sidewindows/tips.h"
#include "store/memorytables.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/linklabel.h"
#include "widgets/rowlistview.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>

class SideWindowsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
        m_form1 = std::make_unique<QWidget>();
        m_form1->show();
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_check1.clear();
        writeFile(path("TIPOFDAY_UK.TXT"), "one\r\ntwo\r\nthree\r\n");
        QByteArray lines;
        for (int slot = 0; slot <= 60; ++slot)
            lines += QByteArray::number(slot == 56 ? 1 : slot) + "\r\n";
        writeFile(path("options_uk.ini"), lines);
        m_module1 = std::make_unique<Module1>();
        m_module1->ReadOptions("opt", m_folder->path());
    }

    void everyLineIsATip()
    {
        const QStringList two{"one", "two"};
        const std::pair<QByteArray, QStringList> rows[] = {
            {"one\r\ntwo\r\n", two},
            {"one\ntwo\n", two},
            {"one\rtwo\r", two},
            {"one\r\ntwo", two},
            {"one\r\n\r\ntwo\r\n", {"one", "", "two"}},
            {"\r\n", {""}},
            {"", {}},
            {QByteArray("\0\r\n", 3), {QString(QChar(0))}},
            {"80 \260C \226 \265L\r\n", {"80 °C – µL"}}, // Windows-1252
        };
        for (const auto &[content, tips] : rows) {
            writeFile(path("tips"), content);
            QCOMPARE(*Tips::read(path("tips")), tips);
        }
        for (const QString &none : {QString(), path("none"), m_folder->path()})
            QVERIFY(!Tips::read(none));
    }

    void drawsAgainUntilTheTipIsAnotherOne()
    {
        QList<double> fractions{0.0, 0.1, 0.3, 0.999};
        const auto take = [&] { return fractions.takeFirst(); };
        for (const auto &[current, next] : {std::pair(0, 1), std::pair(1, 2), std::pair(2, 5)})
            QCOMPARE(Tips::next(current, 5, take), next);
        QVERIFY(fractions.isEmpty());
        for (int i = 0; i < 40; ++i)
            QCOMPARE(Tips::next(0, 40, [i] { return i / 40.0; }), i + 1);
        for (const int count : {0, 1}) { // the only tip stays
            for (const int current : {0, 1})
                QCOMPARE(Tips::next(current, count, [] { return 0.7; }), 1);
        }
    }

    void nextTipIsAlwaysAnother()
    {
        m_module1->OptionSlots(Slot::TipAtStart) = 0;
        openTipWindow();
        QCOMPARE(window("frmTip")->windowTitle(), "Tip of the day");
        QVERIFY(control<QCheckBox>("frmTip", "chkLoadTipsAtStartup").isChecked()); // opening ticks it
        QVERIFY(m_module1->OptionSlots(Slot::TipAtStart).equals(1));
        QCOMPARE(m_check1, QList<bool>{true});
        QStringList seen{nextTip()};
        for (int i = 0; i < 30; ++i) {
            seen << nextTip();
            QVERIFY(seen.at(i) != seen.at(i + 1));
        }
        seen.sort();
        seen.removeDuplicates();
        QCOMPARE(seen, (QStringList{"one", "three", "two"}));
    }

    void onlyOkWritesTheOptions()
    {
        const QByteArray before = readFile(path("options_uk.ini"));
        openTipWindow();
        control<QCheckBox>("frmTip", "chkLoadTipsAtStartup").click();
        QCOMPARE(m_check1, (QList<bool>{true, false}));
        window("frmTip")->close();
        QTRY_VERIFY(!window("frmTip"));
        QVERIFY(m_module1->OptionSlots(Slot::TipAtStart).equals(0));
        QCOMPARE(readFile(path("options_uk.ini")), before);

        openTipWindow();
        control<QCheckBox>("frmTip", "chkLoadTipsAtStartup").click();
        control<QPushButton>("frmTip", "cmdOK").click();
        QCOMPARE(readFile(path("options_uk.ini")).split('\n').at(56), QByteArray("0\r"));
        QVERIFY(m_form1->isEnabled());
        QTRY_VERIFY(!window("frmTip"));

        openTipWindow(); // and the file cannot be written
        QVERIFY(QFile::remove(path("options_uk.ini")) && QDir().mkdir(path("options_uk.ini")));
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, control<QPushButton>("frmTip", "cmdOK").click());
        QVERIFY(m_desktop->boxes.constFirst().first.startsWith("Run-time error '75':"));
    }

    void theSettingOfTheUserCanTurnTipsOff()
    {
        for (const char *setting : {"1", "0", "never"}) { // without one it is wanted, too
            init();
            writeFile(path("Alembra/Alembra_uk.ini"),
                      QByteArray("[Options]\nShow%20Tips%20at%20Startup=") + setting + '\n');
            const int error = errorOf([this] { openTipWindow(); });
            QCOMPARE(error, setting == QByteArray("never") ? ErrorNumber::TypeMismatch : 0);
            QCOMPARE(window("frmTip") != nullptr, setting == QByteArray("1"));
            QCOMPARE(m_form1->isEnabled(), !window("frmTip"));
        }
    }

    void aboutOpensItsSite()
    {
        openAbout(*m_desktop, *m_form1);
        QCOMPARE(text("frmAbout", "lblVersion"), "Version " + Module1::version());
        auto &Label1 = control<LinkLabel>("frmAbout", "Label1");
        QTest::mouseClick(&Label1, Qt::LeftButton);
        QTest::keyClick(&Label1, Qt::Key_Return);
        QCOMPARE(m_desktop->targets, QStringList(2, BuildSettings::WebSite));
        control<QPushButton>("frmAbout", "cmdSysInfo").click();
        QCOMPARE(m_desktop->boxes,
                 (QList<QPair<QString, int>>{
                     {"Les informations système ne sont pas disponibles actuellement", 0}}));
        QVERIFY(window("frmAbout")->isVisible());
    }

    void captionsCloseTheStructureWindow()
    {
        const QPointer<SideWindow> structure = new SideWindow("Form2", *m_form1);
        structure->show();
        openCaptions(*m_form1);
        window("Formhelp")->close();
        QTRY_VERIFY(!structure);
        QVERIFY(m_form1->isEnabled());
    }

    void journalsEndAtTheFirstEmptyRow()
    {
        for (const int filled : {3, 50}) {
            for (int row = 1; row < m_tables.NmrReferenceData.rowCount(); ++row) {
                m_tables.NmrReferenceData(row, 0) = row == filled + 1 ? QString() : QString("J%1").arg(row);
                m_tables.NmrReferenceData(row, 1) = QString("Journal %1").arg(row);
            }
            openJournals(m_tables, *m_form1);
            const QAbstractItemModel &model = *control<RowListView>("Formhelp2", "ListView100").model();
            QCOMPARE(model.rowCount(), filled);
            QCOMPARE(model.index(2, 0).data().toString(), QString("J3"));
            QCOMPARE(model.index(2, 1).data().toString(), QString("Journal 3"));
            window("Formhelp2")->close();
            QTRY_VERIFY(!window("Formhelp2"));
        }
    }

private:
    void openTipWindow()
    {
        openTip(
            *m_module1, *m_desktop, [this](bool wanted) { m_check1 << wanted; }, *m_form1);
    }
    // The text after a click on "Next tip".
    QString nextTip() const
    {
        control<QPushButton>("frmTip", "cmdNextTip").click();
        return text("frmTip", "lblTipText");
    }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QWidget *window(const char *name) const
    {
        return m_form1->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly);
    }
    template<class W>
    W &control(const char *windowName, const char *name) const
    {
        return get<W>(*window(windowName), name);
    }
    QString text(const char *windowName, const char *name) const
    {
        return control<QLabel>(windowName, name).text();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_form1;
    std::unique_ptr<Module1> m_module1;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    MemoryTables m_tables;
    QList<bool> m_check1;
};

const TestClass<SideWindowsTest> sideWindowsTest;
#include "sidewindows_test.moc"
