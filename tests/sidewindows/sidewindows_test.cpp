#include "core/buildsettings.h"
#include "core/module1.h"
#include "sidewindows/frmabout.h"
#include "sidewindows/frmtip.h"
#include "sidewindows/legendcolumn.h"
#include "sidewindows/legends.h"
#include "store/memorytables.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/linklabel.h"
#include "widgets/rowlistview.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using Open = std::function<void()>;
using Close = std::function<void(QWidget &)>;

class SideWindowsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyWindowOpensAboveADisabledOwnerAndGivesItBack_data();
    void everyWindowOpensAboveADisabledOwnerAndGivesItBack();
    void noTextIsCut_data() { everyWindow(); }
    void noTextIsCut();
    void openingTheTipTicksItsBox();
    void nextTipIsAlwaysAnother();
    void saysSoWhereThereIsNoTipFile();
    void emptyTipFileKeepsTheTextOfTheDesign();
    void onlyOkWritesTheOptions();
    void optionsThatCannotBeWrittenEndTheProgram();
    void tipStaysAwayWhenTheUserTurnedItOff();
    void aboutNamesTheProgramAndOpensItsSite();
    void systemInformationIsNotAvailable();
    void closingTheCaptionsClosesTheStructureWindow();
    void mnemonicShowsTheColoursOfTheDigits();
    void signsAndMeaningsOfALegendStandLineByLine();
    void journalsEndAtTheFirstEmptyRow();
    void allFiftyJournalsFit();
    void bondColoursAreThoseOfTheCharts();

private:
    void everyWindow();
    void openTipWindow()
    {
        openTip(
            *m_module1, *m_desktop, [this](bool wanted) { m_check1 << wanted; }, *m_form1);
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray options() const
    {
        QFile file(m_folder->filePath(QStringLiteral("options_uk.ini")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QWidget *window(const char *name) const
    {
        return m_form1->findChild<QWidget *>(QLatin1StringView(name), Qt::FindDirectChildrenOnly);
    }
    template<class W>
    W *control(const char *windowName, const char *name) const
    {
        return window(windowName)->findChild<W *>(QLatin1StringView(name));
    }
    QString text(const char *windowName, const char *name) const
    {
        return control<QLabel>(windowName, name)->text();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_form1;
    std::unique_ptr<Module1> m_module1;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    MemoryTables m_tables;
    QList<bool> m_check1;
};

void SideWindowsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    m_form1 = std::make_unique<QWidget>();
    m_form1->show();
    m_desktop = std::make_unique<ScriptedDesktop>();
    m_check1.clear();
    m_tables = {};
    for (int row = 1; row <= 30; ++row) {
        m_tables.NmrReferenceData(row, 0) = QStringLiteral("J%1").arg(row);
        m_tables.NmrReferenceData(row, 1) = QStringLiteral("Journal %1").arg(row);
    }
    write(QStringLiteral("TIPOFDAY_UK.TXT"), "one\r\ntwo\r\nthree\r\n");
    QByteArray lines;
    for (int slot = 0; slot <= 60; ++slot)
        lines += QByteArray::number(slot == 56 ? 1 : slot) + "\r\n";
    write(QStringLiteral("options_uk.ini"), lines);
    m_module1 = std::make_unique<Module1>();
    m_module1->ReadOptions(QStringLiteral("opt"), m_folder->path());
}

void SideWindowsTest::everyWindow()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<Open>("open");
    const auto row = [](const char *name, const QString &caption, const Open &open) {
        QTest::newRow(name) << QByteArray(name) << caption << open;
    };
    row("frmTip", QStringLiteral("Tip of the day"), [this] { openTipWindow(); });
    row("frmAbout", QStringLiteral("About Alembra"), [this] { openAbout(*m_desktop, *m_form1); });
    row("Formhelp", QStringLiteral("Captions"), [this] { openCaptions(*m_form1); });
    row("Formhelp2", QStringLiteral("Abréviations"), [this] { openJournals(m_tables, *m_form1); });
    row("Formhelp3", QStringLiteral("Code couleur"), [this] { openColourCode(*m_form1); });
    row("Formhelp4", QStringLiteral("Form3"), [this] { openMnemonic(*m_form1); });
}

void SideWindowsTest::everyWindowOpensAboveADisabledOwnerAndGivesItBack_data()
{
    everyWindow();
}

void SideWindowsTest::everyWindowOpensAboveADisabledOwnerAndGivesItBack()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, caption);
    QFETCH(Open, open);
    const QList<Close> waysOut{
        [](QWidget &opened) { QTest::keyClick(&opened, Qt::Key_Return); }, // OK is the default
        [](QWidget &opened) { QTest::keyClick(&opened, Qt::Key_Escape); },
        [](QWidget &opened) { opened.close(); },
    };
    for (const Close &wayOut : waysOut) {
        open();
        const QPointer<QWidget> opened = window(name);
        QVERIFY(opened);
        QCOMPARE(opened->windowTitle(), caption);
        QVERIFY(opened->isVisible() && opened->isEnabled());
        QVERIFY(!m_form1->isEnabled());

        wayOut(*opened);

        QVERIFY(m_form1->isEnabled());
        QTRY_VERIFY(!opened);
    }
}

void SideWindowsTest::noTextIsCut()
{
    QFETCH(QByteArray, name);
    QFETCH(Open, open);
    open();
    const QList<QLabel *> labels = window(name)->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text().isEmpty() || !label->isVisible())
            continue;
        QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
    }
}

void SideWindowsTest::openingTheTipTicksItsBox()
{
    m_module1->OptionSlots(Slot::TipAtStart) = 0;
    openTipWindow();
    QVERIFY(control<QCheckBox>("frmTip", "chkLoadTipsAtStartup")->isChecked());
    QVERIFY(m_module1->OptionSlots(Slot::TipAtStart).equals(1));
    QCOMPARE(m_check1, QList<bool>{true});
}

void SideWindowsTest::nextTipIsAlwaysAnother()
{
    openTipWindow();
    const QStringList tips{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    QStringList seen{text("frmTip", "lblTipText")};
    for (int i = 0; i < 30; ++i) {
        control<QPushButton>("frmTip", "cmdNextTip")->click();
        QVERIFY(seen.last() != text("frmTip", "lblTipText"));
        seen << text("frmTip", "lblTipText");
    }
    for (const QString &tip : seen)
        QVERIFY2(tips.contains(tip), qPrintable(tip));
}

void SideWindowsTest::saysSoWhereThereIsNoTipFile()
{
    QFile::remove(m_folder->filePath(QStringLiteral("TIPOFDAY_UK.TXT")));
    openTipWindow();
    const QString missing =
        QStringLiteral("That the TIPOFDAY_UK.TXT file was not found? \n\nCreate a text file named "
                       "TIPOFDAY_UK.TXT using NotePad "
                       "with 1 tip per line. Then place it in the same directory as the application. ");
    QCOMPARE(text("frmTip", "lblTipText"), missing);
    control<QPushButton>("frmTip", "cmdNextTip")->click();
    QCOMPARE(text("frmTip", "lblTipText"), missing);
}

void SideWindowsTest::emptyTipFileKeepsTheTextOfTheDesign()
{
    write(QStringLiteral("TIPOFDAY_UK.TXT"), {});
    openTipWindow();
    control<QPushButton>("frmTip", "cmdNextTip")->click();
    QCOMPARE(text("frmTip", "lblTipText"), QStringLiteral("There is no tip."));
}

void SideWindowsTest::onlyOkWritesTheOptions()
{
    const QByteArray before = options();
    openTipWindow();
    control<QCheckBox>("frmTip", "chkLoadTipsAtStartup")->click();
    QCOMPARE(m_check1, (QList<bool>{true, false}));
    window("frmTip")->close();
    QVERIFY(m_module1->OptionSlots(Slot::TipAtStart).equals(0));
    QCOMPARE(options(), before);
    QTRY_VERIFY(!window("frmTip"));

    openTipWindow();
    control<QCheckBox>("frmTip", "chkLoadTipsAtStartup")->click();
    control<QPushButton>("frmTip", "cmdOK")->click();
    QCOMPARE(options().split('\n').at(56), QByteArray("0\r"));
    QVERIFY(m_form1->isEnabled());
}

void SideWindowsTest::optionsThatCannotBeWrittenEndTheProgram()
{
    openTipWindow();
    const QString path = m_folder->filePath(QStringLiteral("options_uk.ini"));
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, control<QPushButton>("frmTip", "cmdOK")->click());
    QVERIFY(m_desktop->boxes.constFirst().first.startsWith(QStringLiteral("Run-time error '75':")));
}

void SideWindowsTest::tipStaysAwayWhenTheUserTurnedItOff()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("Alembra")));
    write(QStringLiteral("Alembra/Alembra_uk.ini"), "[Options]\nShow%20Tips%20at%20Startup=0\n");
    openTipWindow();
    QVERIFY(!window("frmTip"));
    QVERIFY(m_form1->isEnabled());
    QVERIFY(m_check1.isEmpty());
}

void SideWindowsTest::aboutNamesTheProgramAndOpensItsSite()
{
    openAbout(*m_desktop, *m_form1);
    QCOMPARE(text("frmAbout", "lblTitle"), QStringLiteral("Alembra"));
    QCOMPARE(text("frmAbout", "lblVersion"), QStringLiteral("Version ") + Module1::version());
    QVERIFY(text("frmAbout", "Label2").contains(QLatin1Char('@')));

    auto *Label1 = control<LinkLabel>("frmAbout", "Label1");
    QTest::mouseClick(Label1, Qt::LeftButton);
    QTest::keyClick(Label1, Qt::Key_Return);
    const QString site = QLatin1StringView(BuildSettings::WebSite);
    QCOMPARE(m_desktop->targets, (QStringList{site, site}));
    QVERIFY(window("frmAbout")->isVisible());
}

void SideWindowsTest::systemInformationIsNotAvailable()
{
    openAbout(*m_desktop, *m_form1);
    control<QPushButton>("frmAbout", "cmdSysInfo")->click();
    QCOMPARE(m_desktop->boxes,
             (QList<QPair<QString, int>>{
                 {QStringLiteral("Les informations système ne sont pas disponibles actuellement"), 0}}));
}

void SideWindowsTest::closingTheCaptionsClosesTheStructureWindow()
{
    auto *Form2 = new SideWindow("Form2", *m_form1);
    Form2->show();
    const QPointer<QWidget> structure = Form2;
    openCaptions(*m_form1);
    window("Formhelp")->close();
    QTRY_VERIFY(!structure);
    QVERIFY(m_form1->isEnabled());
}

void SideWindowsTest::mnemonicShowsTheColoursOfTheDigits()
{
    openMnemonic(*m_form1);
    const QImage picture = control<QWidget>("Formhelp4", "Image3")->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours << picture.pixel(x, y);
    }
    for (const QRgb band : {0xFF8B4513U, 0xFFFF0000U, 0xFFFFA500U, 0xFFFFFF00U, 0xFF008000U, 0xFF0000FFU})
        QVERIFY2(colours.contains(band), qPrintable(QColor(band).name()));
}

void SideWindowsTest::signsAndMeaningsOfALegendStandLineByLine()
{
    openCaptions(*m_form1);
    QStringList lines;
    const QList<LegendColumn *> columns = window("Formhelp")->findChildren<LegendColumn *>();
    for (const LegendColumn *column : columns)
        lines << column->entries().join(QLatin1Char('|'));
    QCOMPARE(lines, (QStringList{
                        QStringLiteral("* = natural existence"),
                        QStringLiteral("s|m|h|d|y"),
                        QStringLiteral("= second|= minute|= hour|= day|= year"),
                        QStringLiteral("α|β−|β+|ε|IT|SF"),
                        QStringLiteral("= alpha particle|= negative electron|= positron|= electron capture|"
                                       "= isomeric transition|= spontaneous fission"),
                    }));
}

void SideWindowsTest::journalsEndAtTheFirstEmptyRow()
{
    m_tables.NmrReferenceData(4, 0).clear();
    openJournals(m_tables, *m_form1);
    const QAbstractItemModel *model = control<RowListView>("Formhelp2", "ListView100")->model();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(2, 0).data().toString(), QStringLiteral("J3"));
    QCOMPARE(model->index(2, 1).data().toString(), QStringLiteral("Journal 3"));
}

void SideWindowsTest::allFiftyJournalsFit()
{
    for (int row = 1; row < m_tables.NmrReferenceData.rowCount(); ++row)
        m_tables.NmrReferenceData(row, 0) = QStringLiteral("J");
    openJournals(m_tables, *m_form1);
    QCOMPARE(control<RowListView>("Formhelp2", "ListView100")->model()->rowCount(), 50);
}

void SideWindowsTest::bondColoursAreThoseOfTheCharts()
{
    openColourCode(*m_form1);
    const auto colour = [&](const char *name) {
        return control<QLabel>("Formhelp3", name)->palette().color(QPalette::WindowText).name();
    };
    QCOMPARE(colour("Label2(0)"), QStringLiteral("#ff0000"));
    QCOMPARE(colour("Label2(5)"), QStringLiteral("#c0c000"));
    QCOMPARE(colour("Label2(8)"), QStringLiteral("#00c0c0"));
    QCOMPARE(text("Formhelp3", "Label2(2)"), QStringLiteral("Hydrogen (H),  Carbon (C)"));
    QCOMPARE(text("Formhelp3", "Label2(3)"), QStringLiteral("Bond between Carbon (C) or Hydrogen (H) and:"));
}

QTEST_MAIN(SideWindowsTest)
#include "sidewindows_test.moc"
