#include "widgets/tabstrip.h"

#include <QSignalSpy>
#include <QTest>

class TabStripTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClickIsToldOnceAlsoOnTheSelectedTab_data();
    void everyClickIsToldOnceAlsoOnTheSelectedTab();
    void theKeyboardChangesTheTab();
};

void TabStripTest::everyClickIsToldOnceAlsoOnTheSelectedTab_data()
{
    QTest::addColumn<TabStrip::Direction>("direction");
    QTest::newRow("across") << TabStrip::Across;
    QTest::newRow("down") << TabStrip::Down;
}

void TabStripTest::everyClickIsToldOnceAlsoOnTheSelectedTab()
{
    QFETCH(TabStrip::Direction, direction);
    TabStrip strip(QStringLiteral("TabStrip3"), {"Length", "Surface", "Volume"}, direction, nullptr);
    strip.resize(strip.sizeHint());
    QSignalSpy clicks(&strip, &TabStrip::tabClicked);
    const auto click = [&](int tab, Qt::MouseButton button) {
        QTest::mouseClick(&strip, button, {}, strip.tabRect(tab - 1).center());
    };

    click(1, Qt::LeftButton);
    click(3, Qt::LeftButton);
    click(3, Qt::LeftButton);
    click(3, Qt::RightButton);
    strip.selectTab(2);

    QCOMPARE(clicks, (QList<QVariantList>{{1}, {3}, {3}, {2}}));
    QCOMPARE(strip.selectedTab(), 2);
}

void TabStripTest::theKeyboardChangesTheTab()
{
    TabStrip strip(QStringLiteral("TabStrip3"), {"Length", "Surface"}, TabStrip::Down, nullptr);
    QSignalSpy clicks(&strip, &TabStrip::tabClicked);

    QTest::keyClick(&strip, Qt::Key_Up);
    QTest::keyClick(&strip, Qt::Key_Down);
    QTest::keyClick(&strip, Qt::Key_Down);

    QCOMPARE(clicks, (QList<QVariantList>{{2}}));
}

QTEST_MAIN(TabStripTest)
#include "tabstrip_test.moc"
