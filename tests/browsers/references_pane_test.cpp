#include "browsers/referencespane.h"
#include "browsers/textpanes.h"
#include "core/buildsettings.h"
#include "core/module1.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/linklabel.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTest>
#include <QToolButton>
#include <QUrl>

class ReferencesPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksOpenTheirPages_data();
    void linksOpenTheirPages();
    void theInfraredChartsAreAPageOfTheProgram();
    void textsAreSelectedAndCopied();
    void otherLabelsDoNothing();
    void linksAreReachedAndPressedByTheKeyboard();
    void everyLabelIsOnThePageOnce();
    void bothPicturesOpenTheDonationPage();

    void initTestCase() { m_module.AppFolder = QStringLiteral(ALEMBRA_FOLDER); }

private:
    Module1 m_module;

    static QLabel &label(ReferencesPane &pane, int index)
    {
        return *pane.findChild<QLabel *>(Controls::indexedName("Label1", index));
    }
};

void ReferencesPaneTest::linksOpenTheirPages_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("end");

    QTest::newRow("NMR charts") << 12 << "/areas/organic/index-chem.HTM";
    QTest::newRow("Olympus") << 26 << "/primer/techniques/fluorescence/fluorotable2.html";
    QTest::newRow("Zeiss") << 27 << "/us/us_en/spektral.php?f=fa";
    QTest::newRow("SDBS") << 44 << "/sdbs/cgi-bin/cre_index.cgi?lang=eng";
    for (const int index : {9, 19, 23, 30, 36})
        QTest::addRow("%d", index) << index << "";
}

void ReferencesPaneTest::linksOpenTheirPages()
{
    QFETCH(const int, index);
    QFETCH(const QString, end);
    ScriptedDesktop desktop;
    ReferencesPane pane(m_module, desktop, nullptr);
    pane.show();

    QTest::mouseClick(&label(pane, index), Qt::LeftButton);

    QCOMPARE(desktop.targets.size(), 1);
    const QUrl address(desktop.targets.constFirst(), QUrl::StrictMode);
    QVERIFY2(address.isValid() && !address.host().isEmpty(), qPrintable(desktop.targets.constFirst()));
    QVERIFY(desktop.targets.constFirst().endsWith(end));
    QVERIFY(address.host() != QUrl(QLatin1StringView(BuildSettings::WebSite)).host()); // nothing is there
}

void ReferencesPaneTest::theInfraredChartsAreAPageOfTheProgram()
{
    ScriptedDesktop desktop;
    ReferencesPane pane(m_module, desktop, nullptr);
    pane.show();
    QTest::mouseClick(&label(pane, 31), Qt::LeftButton);
    QFile page(desktop.targets.value(0));
    QVERIFY(page.fileName().endsWith("/vcorr.htm") && page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().contains("Data/ir/6.gif"));
}

void ReferencesPaneTest::textsAreSelectedAndCopied()
{
    ScriptedDesktop desktop;
    ReferencesPane pane(m_module, desktop, nullptr);
    pane.show();
    for (const int index : {6, 33, 44}) { // a heading, a source, a link
        QLabel &text = label(pane, index);
        QTest::mousePress(&text, Qt::LeftButton, {}, {1, text.height() / 2});
        QTest::mouseMove(&text, {text.width() - 1, text.height() / 2});
        QTest::mouseRelease(&text, Qt::LeftButton, {}, {text.width() - 1, text.height() / 2});
        QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(text.text().contains(QGuiApplication::clipboard()->text().trimmed()));
        QVERIFY2(QGuiApplication::clipboard()->text().size() > 5, qPrintable(text.text()));
        QGuiApplication::clipboard()->clear();
    }
    QVERIFY(desktop.targets.isEmpty());
}

void ReferencesPaneTest::otherLabelsDoNothing()
{
    ScriptedDesktop desktop;
    ReferencesPane pane(m_module, desktop, nullptr);
    pane.show();
    for (const int index : {0, 3, 21, 32, 45})
        QTest::mouseClick(&label(pane, index), Qt::LeftButton);
    QVERIFY(desktop.targets.isEmpty());
}

void ReferencesPaneTest::linksAreReachedAndPressedByTheKeyboard()
{
    ScriptedDesktop desktop;
    ReferencesPane pane(m_module, desktop, nullptr);
    pane.show();
    for (const LinkLabel *link : pane.findChildren<LinkLabel *>())
        QVERIFY(link->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(&label(pane, 9), Qt::Key_Return);
    QTest::keyClick(&label(pane, 9), Qt::Key_Space);
    QTest::keyClick(&label(pane, 9), Qt::Key_A);
    QCOMPARE(desktop.targets.size(), 2);
}

void ReferencesPaneTest::everyLabelIsOnThePageOnce()
{
    QSet<int> indices;
    for (const References::Entry &entry : References::page()) {
        QVERIFY2(!indices.contains(entry.index), qPrintable(entry.text));
        indices << entry.index;
        if (entry.kind == References::Entry::Kind::Link) {
            QVERIFY2(!indices.contains(entry.bullet), qPrintable(entry.text));
            indices << entry.bullet;
        }
    }
}

void ReferencesPaneTest::bothPicturesOpenTheDonationPage()
{
    ScriptedDesktop desktop;
    DonatePane pane(desktop, nullptr);
    pane.show();
    pane.findChild<QToolButton *>("Image1")->click();
    pane.findChild<QToolButton *>("Image2")->click();
    const QString page = QLatin1StringView(BuildSettings::WebSite) + QStringLiteral("/uk/don.php");
    QCOMPARE(desktop.targets, (QStringList{page, page}));
}

QTEST_MAIN(ReferencesPaneTest)
#include "references_pane_test.moc"
