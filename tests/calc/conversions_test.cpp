#include "calc/units.h"
#include "calcwindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTreeView>

/// The conversions, constants and units of the pane.
class ConversionsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conversionsFollowTheKeysAndTheLists();
    void aPastedNumberConvertsAtOnce();
    void aNameThatSaysHowMuchOneIsSaysWhatTheConversionGives();
    void theResultOfAConversionTakesNoKeys();
    void aUnitWithoutItsSymbolEndsInTheReport();
    void constantsAndUnitsShowOneListATab();
};

void ConversionsTest::conversionsFollowTheKeysAndTheLists()
{
    CalcWindow window;
    const QString input = QStringLiteral("TextBoxM1");
    const QString result = QStringLiteral("TextBoxM2");
    QCOMPARE(window.text(result), QStringLiteral("0"));
    window.clickUnit(QStringLiteral("List1"), 12);
    QCOMPARE(window.text(result), QStringLiteral("0"));
    window.type(input, QStringLiteral("1"));
    QCOMPARE(window.text(result), QStringLiteral("1609.344"));
    window.clickUnit(QStringLiteral("List2"), 0);
    QCOMPARE(window.text(result), QStringLiteral("1.609344"));
    QTest::keyClick(&window.get<QListWidget>(QStringLiteral("List2")), Qt::Key_Down);
    QCOMPARE(window.text(result), QStringLiteral("16.09344"));

    window.clickTab(QStringLiteral("TabStrip3"), 5);
    QCOMPARE(window.focusWidget()->objectName(), input);
    QCOMPARE(window.text(input), QString());
    QCOMPARE(window.text(result), QStringLiteral("0"));
    for (int list = 1; list <= 16; ++list)
        QCOMPARE(window.isShown(QStringLiteral("List%1").arg(list)), list == 7 || list == 8);
    window.type(input, QStringLiteral("-"));
    QCOMPARE(window.text(result), QString());
    window.type(input, QStringLiteral("40"));
    QCOMPARE(window.text(result), QStringLiteral("-40"));
    window.field(input).selectAll();
    QTest::keyClick(&window.field(input), Qt::Key_Delete);
    QCOMPARE(window.text(result), QStringLiteral("0"));

    for (const char *next : {"List7", "TextBoxM2", "List8"}) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(window.focusWidget()->objectName(), QLatin1StringView(next));
    }

    window.clickTab(QStringLiteral("TabStrip3"), 1);
    QCOMPARE(window.get<QListWidget>(QStringLiteral("List1")).currentRow(), 12);
}

void ConversionsTest::aPastedNumberConvertsAtOnce()
{
    CalcWindow window;
    QGuiApplication::clipboard()->setText(QStringLiteral(" 2.5\n"));
    window.field(QStringLiteral("TextBoxM1")).paste();
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QStringLiteral("2.5"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("2500"));
}

void ConversionsTest::aNameThatSaysHowMuchOneIsSaysWhatTheConversionGives()
{
    CalcWindow window;
    static const QRegularExpression Form(QStringLiteral(" of ([0-9.E-]+) (\\w+) \\("));
    int found = 0;
    for (int tab = 1; tab <= 8; ++tab) {
        window.clickTab(QStringLiteral("TabStrip3"), tab);
        window.type(QStringLiteral("TextBoxM1"), QStringLiteral("1"));
        const QStringList names = Units::names(Units::quantity(tab), window.module.OptionSlots);
        for (const QString &name : names) {
            const QRegularExpressionMatch match = Form.match(name);
            if (!match.hasMatch())
                continue;
            const auto select = [&](int list, const QString &unit) {
                const auto row = names.indexOf(names.filter(unit).value(0));
                QVERIFY2(row >= 0, qPrintable(unit));
                window.clickUnit(QStringLiteral("List%1").arg(list), int(row));
            };
            select(Units::quantity(tab).inputList, name);
            select(Units::quantity(tab).resultList, QStringLiteral("(%1)").arg(match.captured(2)));
            const double result = window.text(QStringLiteral("TextBoxM2")).toDouble();
            QVERIFY2(std::abs(result / match.captured(1).toDouble() - 1) < 1E-7, qPrintable(name));
            ++found;
        }
    }
    QCOMPARE(found, 12);
}

void ConversionsTest::theResultOfAConversionTakesNoKeys()
{
    CalcWindow window;
    window.type(QStringLiteral("TextBoxM2"), QStringLiteral("-.5"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("0"));
}

void ConversionsTest::aUnitWithoutItsSymbolEndsInTheReport()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip3"), 2);
    window.type(QStringLiteral("TextBoxM1"), QStringLiteral("1"));
    window.get<QListWidget>(QStringLiteral("List1")).currentItem()->setText(QStringLiteral("kilometer"));
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, window.get<TabStrip>(QStringLiteral("TabStrip3")).selectTab(1));
    QVERIFY(window.desktop.boxes.constFirst().first.startsWith(QLatin1String("Run-time error '9'")));
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QStringLiteral("1"));
}

void ConversionsTest::constantsAndUnitsShowOneListATab()
{
    CalcWindow window;
    const auto shown = [&](const QString &array, int count) {
        QList<int> indices;
        for (int index = 0; index < count; ++index) {
            if (window.isShown(QStringLiteral("%1(%2)").arg(array).arg(index)))
                indices << index;
        }
        return indices;
    };
    for (int tab = 5; tab >= 1; --tab) {
        window.clickTab(QStringLiteral("TabStrip6"), tab);
        QCOMPARE(shown(QStringLiteral("ListView2"), 5), QList<int>{tab - 1});
    }
    for (int tab = 7; tab >= 1; --tab) {
        window.clickTab(QStringLiteral("TabStrip5"), tab);
        QCOMPARE(shown(QStringLiteral("ListView7"), 7), QList<int>{tab - 1});
        QCOMPARE(window.isShown(QStringLiteral("Label2(29)")), tab != 1);
        QCOMPARE(window.isShown(QStringLiteral("Label2(38)")), tab != 1 && tab != 6);
        const auto &list = window.get<QTreeView>(QStringLiteral("ListView7(%1)").arg(tab - 1));
        QCOMPARE(list.isColumnHidden(3), tab == 1); // no column without its title
        QCOMPARE(list.isColumnHidden(4), tab == 1 || tab == 6);
    }
}

QTEST_MAIN(ConversionsTest)
#include "conversions_test.moc"
