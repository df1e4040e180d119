#include "browsers/solventtabs.h"

#include <QTest>

class SolventTabsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFindBarStaysOnTheTwoListsThatItSearches();
};

void SolventTabsTest::theFindBarStaysOnTheTwoListsThatItSearches()
{
    QStringList searchable;
    for (const SolventTabs::Tab &tab : SolventTabs::all()) {
        if (tab.searchable)
            searchable << tab.caption;
    }
    QCOMPARE(searchable, (QStringList{QStringLiteral("Properties"), QStringLiteral("Mass spectrometry")}));
}

QTEST_GUILESS_MAIN(SolventTabsTest)
#include "solvent_tabs_test.moc"
