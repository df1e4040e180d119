#include "calcwindow.h"

#include "calc/calctabs.h"
#include "widgets/textboxm.h"

#include <QRadioButton>
#include <QRegularExpression>

using namespace CalcFields;

/// The calculators of the pane.
class CalculationsPaneTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterCalculatesAndASecondTimeComplains();
    void aTabShowsItsOwnControlsAloneEachInItsPlace_data();
    void aTabShowsItsOwnControlsAloneEachInItsPlace();
    void aTabClickEmptiesItsFieldsAndKeepsThoseOfDilutionAndPressure();
    void clearEmptiesTheFieldsOfAllTabs();
    void fractionsFollowTheKeys();
    void aRatioThatTheCalculationWritesIsWatchedToo();
    void theFirstChangeBringsTheDecimalsOfTheOptions();
    void aLiquidEmptiesItsTabAndChangesTheResult();
    void theDeltaStandsInTheGapOfItsFormula();
    void everyFieldHasItsLabel();
    void anOkOfTheOptionsEmptiesTheEntries();
};

void CalculationsPaneTest::enterCalculatesAndASecondTimeComplains()
{
    CalcWindow window;
    window.type(QStringLiteral("TextBoxM4"), QStringLiteral("18"));
    window.type(QStringLiteral("TextBoxM5"), QStringLiteral("18.015"));
    QTest::keyClick(&window.field(QStringLiteral("TextBoxM5")), Qt::Key_Return);
    QCOMPARE(window.text(QStringLiteral("TextBoxM3")), QStringLiteral("0.999167360532889"));
    QCOMPARE(window.messages(), QStringList());

    window.press(QStringLiteral("Command8(0)"));
    QCOMPARE(window.messages(), QStringList("Please leave 1 empty field to perform calculation"));
}

void CalculationsPaneTest::aTabShowsItsOwnControlsAloneEachInItsPlace_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("places"); // see Window::places()
    QTest::addColumn<QString>("formula");
    QTest::newRow("amount") << 1 << "0 n (mol) TextBoxM3, 1 m (g) TextBoxM4, 2 M (g/mol) TextBoxM5"
                            << "n = m / M";
    QTest::newRow("concentration") << 2 << "0 C (mol/L) TextBoxM3, 1 n (mol) TextBoxM4, 2 V (L) TextBoxM5"
                                   << "C = n / V";
    QTest::newRow("volumic mass") << 3 << "0 m (g) TextBoxM3, 1 rau (g/cm3) TextBoxM4, 2 V (mL) TextBoxM5"
                                  << "m = rau . V";
    QTest::newRow("dilution") << 4
                              << "4 Ci (mol/L) TextBoxM7(6), 5 Vi (L) TextBoxM7(7) / "
                                 "6 Cf (mol/L) TextBoxM7(8), 7 Vf (L) TextBoxM7(9), 13 T TextBoxM7(10)"
                              << "Ci . Vi = Cf . Vf  et  T = Cf / Ci = Vi / Vf";
    QTest::newRow("fractions") << 5
                               << "11 Xn1 TextBoxM7(0), 10 Xn2 TextBoxM7(1), 12 M1 (g/mol) TextBoxM7(4) / "
                                  "9 Xm1 TextBoxM7(2), 3 Xm2 TextBoxM7(3), 8 M2 (g/mol) TextBoxM7(5)"
                               << "Xm1 = (Xn1 . M1) / [Xn1 . M1 + (1 - Xn1) . M2]";
    QTest::newRow("pressure") << 6
                              << "15 T (°C) TextBoxM7(11), 14 P (mbar, mmHg...) TextBoxM7(12) / "
                                 "16 T* (°C) TextBoxM7(13), 17 P* (mbar, mmHg...) TextBoxM7(14)"
                              << "P = P* . exp [ - (   vap H / R) . (1 / T - 1 / T*) ]     * = atmospheric";
}

void CalculationsPaneTest::aTabShowsItsOwnControlsAloneEachInItsPlace()
{
    QFETCH(int, tab);
    QFETCH(QString, places);
    CalcWindow window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.clickTab(QStringLiteral("TabStrip4"), tab == 3 ? 1 : 3);
    window.clickTab(QStringLiteral("TabStrip4"), tab);

    QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("TabStrip4"));
    QCOMPARE(window.places(), places);
    for (const auto &[field, label, caption, row, column] : CalcTabs::labels())
        QCOMPARE(window.isShown(CalcTabs::name(field)), places.contains(CalcTabs::name(field)));
    if (tab == 6) { // a choice of the liquid empties the fields, so it comes first
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("Option10(3)"));
    }
    const QRegularExpression fields(QStringLiteral("TextBoxM[0-9()]+"));
    for (const QRegularExpressionMatch &field : fields.globalMatch(places)) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(window.focusWidget()->objectName(), field.captured());
    }
    for (const char *name : {"Option10(1)", "Option10(2)", "Option10(3)", "lbln(0)"})
        QCOMPARE(window.isShown(QString::fromLatin1(name)), tab == 6);
    QTEST(window.get<QLabel>(QStringLiteral("lbln(3)")).text(), "formula");
}

void CalculationsPaneTest::aTabClickEmptiesItsFieldsAndKeepsThoseOfDilutionAndPressure()
{
    CalcWindow window;
    const QString strip = QStringLiteral("TabStrip4");
    window.clickTab(strip, 4);
    window.type(QStringLiteral("TextBoxM7(8)"), QStringLiteral("0.5"));
    window.clickTab(strip, 1);
    window.type(QStringLiteral("TextBoxM4"), QStringLiteral("18"));
    window.clickTab(strip, 1);
    QCOMPARE(window.text(QStringLiteral("TextBoxM4")), QString());

    window.clickTab(strip, 5);
    window.type(QStringLiteral("TextBoxM7(5)"), QStringLiteral("46"));
    window.clickTab(strip, 4);
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(5)")), QString());
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(8)")), QStringLiteral("0.5"));
}

void CalculationsPaneTest::clearEmptiesTheFieldsOfAllTabs()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip4"), 6);
    window.get<QRadioButton>(QStringLiteral("Option10(1)")).click();
    for (const auto &[field, label, caption, row, column] : CalcTabs::labels())
        window.field(CalcTabs::name(field)).setText(QStringLiteral("0.5"));

    window.press(QStringLiteral("Command8(1)"));

    for (const auto &[field, label, caption, row, column] : CalcTabs::labels())
        QCOMPARE(window.text(CalcTabs::name(field)), QString());
    QVERIFY(window.get<QRadioButton>(QStringLiteral("Option10(1)")).isChecked());
    QCOMPARE(window.get<TabStrip>(QStringLiteral("TabStrip4")).selectedTab(), 6);
}

void CalculationsPaneTest::fractionsFollowTheKeys()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip4"), 5);
    window.type(QStringLiteral("TextBoxM7(0)"), QStringLiteral(".3"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(0)")), QStringLiteral("0.3"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(1)")), QStringLiteral("0.7"));

    // In the middle of a text the cursor stays where the user works.
    window.field(QStringLiteral("TextBoxM7(0)")).setCursorPosition(2);
    window.type(QStringLiteral("TextBoxM7(0)"), QStringLiteral("12"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(0)")), QStringLiteral("0.123"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(1)")), QStringLiteral("0.877"));

    window.type(QStringLiteral("TextBoxM7(3)"), QStringLiteral("1.5"));
    QCOMPARE(window.messages(), QStringList("Please use a value between 0 and 1"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(2)")), QString());
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(3)")), QString());
}

void CalculationsPaneTest::aRatioThatTheCalculationWritesIsWatchedToo()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip4"), 4);
    window.type(QStringLiteral("TextBoxM7(6)"), QStringLiteral("9"));
    window.type(QStringLiteral("TextBoxM7(8)"), QStringLiteral("10"));
    window.type(QStringLiteral("TextBoxM7(9)"), QStringLiteral("1"));
    window.press(QStringLiteral("Command8(0)"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(7)")), QStringLiteral("1.11111111111111"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(10)")), QString());
    QCOMPARE(window.messages(), QStringList("Please use a value between 0 and 1"));
}

void CalculationsPaneTest::theFirstChangeBringsTheDecimalsOfTheOptions()
{
    CalcWindow window;
    window.module.OptionSlots(Slot::Decimals) = 2;
    window.clickTab(QStringLiteral("TabStrip4"), 4);
    window.type(QStringLiteral("TextBoxM7(6)"), QStringLiteral("1.2345"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(6)")), QStringLiteral("1.23"));
    QCOMPARE(window.get<TextBoxM>(QStringLiteral("TextBoxM7(14)")).decimales(), 2);
    QCOMPARE(window.get<TextBoxM>(QStringLiteral("TextBoxM3")).decimales(), 10);
}

void CalculationsPaneTest::aLiquidEmptiesItsTabAndChangesTheResult()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip4"), 6);
    QVERIFY(window.get<QRadioButton>(QStringLiteral("Option10(3)")).isChecked());
    QStringList pressures;
    for (const char *liquid : {"Option10(3)", "Option10(2)", "Option10(1)"}) {
        window.get<QRadioButton>(QString::fromLatin1(liquid)).click();
        window.type(QStringLiteral("TextBoxM7(11)"), QStringLiteral("-20"));
        window.type(QStringLiteral("TextBoxM7(13)"), QStringLiteral("100"));
        window.type(QStringLiteral("TextBoxM7(14)"), QStringLiteral("1000"));
        window.press(QStringLiteral("Command8(0)"));
        pressures << window.text(QStringLiteral("TextBoxM7(12)")).left(5);
    }
    QCOMPARE(window.messages(), QStringList());
    // 1000 exp(-K / 8.314 (373.15 / 253.15 - 1)) for K = 85, 73 and 109
    QCOMPARE(pressures, (QStringList{"7.857", "15.57", "1.999"}));
}

void CalculationsPaneTest::theDeltaStandsInTheGapOfItsFormula()
{
    CalcWindow window;
    window.clickTab(QStringLiteral("TabStrip4"), 6);
    const auto &delta = window.get<QLabel>(QStringLiteral("lbln(0)"));
    const auto &formula = window.get<QLabel>(QStringLiteral("lbln(3)"));
    QCOMPARE(delta.text(), QStringLiteral("Δ"));
    const QString before = QString::fromLatin1(CalcTabs::BeforeDelta);
    QVERIFY(formula.text().startsWith(before + QLatin1String(CalcTabs::DeltaGap) + QLatin1Char('v')));
    const int left = formula.mapTo(&window, formula.contentsRect().topLeft()).x() +
                     formula.fontMetrics().horizontalAdvance(before);
    const int middle = delta.mapTo(&window, delta.rect().center()).x();
    const int gap = formula.fontMetrics().horizontalAdvance(QLatin1String(CalcTabs::DeltaGap));
    QVERIFY(middle > left && middle < left + gap);
    QVERIFY(!delta.visibleRegion().isEmpty());
}

void CalculationsPaneTest::everyFieldHasItsLabel()
{
    CalcWindow window;
    QStringList labelled;
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            labelled << label->buddy()->objectName();
    }
    for (const TextBoxM *field : window.findChildren<TextBoxM *>())
        QVERIFY2(labelled.contains(field->objectName()), qPrintable(field->objectName()));
}

void CalculationsPaneTest::anOkOfTheOptionsEmptiesTheEntries()
{
    CalcWindow window;
    for (const auto &[field, label, caption, row, column] : CalcTabs::labels())
        window.field(CalcTabs::name(field)).setText(QStringLiteral("0.5"));
    window.type(QStringLiteral("TextBoxM1"), QStringLiteral("1"));

    window.pane.emptyEntryFields();

    for (const auto &[field, label, caption, row, column] : CalcTabs::labels())
        QCOMPARE(window.text(CalcTabs::name(field)).isEmpty(), field < Ci || field > PStar);
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QString());
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("0"));
}

QTEST_MAIN(CalculationsPaneTest)
#include "calculations_pane_test.moc"
