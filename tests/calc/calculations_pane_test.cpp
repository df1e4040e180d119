#include "calc/calculationspane.h"

#include "calc/calctabs.h"
#include "calc/unitlists.h"
#include "core/controls.h"
#include "core/module1.h"
#include "core/tabstrip.h"
#include "core/textboxm.h"
#include "store/rowlists.h"
#include "store/rowlistview.h"
#include "tests/support/scripteddesktop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>

#include <map>

using namespace CalcFields;

/// A window with the pane in it and units of the delivered names.
class Window final : public QWidget
{
public:
    Window()
    {
        module.OptionSlots.read(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
        units.fill(module.OptionSlots, module.UnitItemCount);
        pane.show();
        show();
    }

    template<class W>
    W &get(const QString &name) const
    {
        auto *control = findChild<W *>(name);
        Q_ASSERT_X(control, "Window", qPrintable(name));
        return *control;
    }
    QLineEdit &field(const QString &name) const { return get<QLineEdit>(name); }
    QString text(const QString &name) const { return field(name).text(); }
    bool isShown(const QString &name) const { return Controls::isShown(get<QWidget>(name)); }

    /// The labels `lbl2` on show as they are read, line by line: index, caption and the field that stands
    /// under it.
    QString places() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        std::map<std::pair<int, int>, QString> places; // by top and left
        for (int index = 0; index < 18; ++index) {
            const auto &label = get<QLabel>(QStringLiteral("lbl2(%1)").arg(index));
            if (!Controls::isShown(label))
                continue;
            const QWidget &field = *label.buddy();
            const bool isOver = label.x() == field.x() && label.geometry().bottom() < field.y();
            places[{label.y(), label.x()}] +=
                QStringLiteral("%1 %2 %3")
                    .arg(index)
                    .arg(label.text(), isOver ? field.objectName() : QStringLiteral("astray"));
        }
        QString text;
        for (auto place = places.begin(); place != places.end(); ++place) {
            const bool isNewLine =
                place != places.begin() && std::prev(place)->first.first != place->first.first;
            text += QLatin1String(text.isEmpty() ? "" : isNewLine ? " / " : ", ") + place->second;
        }
        return text;
    }

    void type(const QString &name, const QString &keys) const
    {
        field(name).setFocus();
        QTest::keyClicks(&field(name), keys);
    }
    void clickTab(const QString &strip, int tab) const
    {
        auto &tabs = get<TabStrip>(strip);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    void clickUnit(const QString &list, int row) const
    {
        auto &names = get<QListWidget>(list);
        names.scrollToItem(names.item(row));
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {},
                          names.visualItemRect(names.item(row)).center());
    }
    void press(const QString &button) const { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }

    /// What the pane said since the last time it was asked.
    QStringList messages()
    {
        QStringList texts;
        for (const auto &[text, style] : std::exchange(desktop.boxes, {})) {
            texts << text;
            if (style != Desktop::Warning)
                texts << QStringLiteral("style %1").arg(style);
        }
        return texts;
    }

    Module1 module;
    ScriptedDesktop desktop;
    RowLists lists;
    UnitLists units;
    CalculationsPane pane{module, desktop, lists, units, this};
};

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
    void conversionsFollowTheKeysAndTheLists();
    void aPastedNumberConvertsAtOnce();
    void theResultOfAConversionTakesNoKeys();
    void aUnitWithoutItsSymbolEndsInTheReport();
    void constantsAndUnitsShowOneListATab();
    void anOkOfTheOptionsEmptiesTheEntries();
};

void CalculationsPaneTest::enterCalculatesAndASecondTimeComplains()
{
    Window window;
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
    Window window;
    window.clickTab(QStringLiteral("TabStrip4"), tab == 3 ? 1 : 3);
    window.clickTab(QStringLiteral("TabStrip4"), tab);

    QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("TabStrip4"));
    QCOMPARE(window.places(), places);
    for (const Field field : CalcTabs::clearingOrder())
        QCOMPARE(window.isShown(CalcTabs::name(field)), places.contains(CalcTabs::name(field)));
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
    Window window;
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
    Window window;
    window.clickTab(QStringLiteral("TabStrip4"), 6);
    window.get<QRadioButton>(QStringLiteral("Option10(1)")).click();
    for (const Field field : CalcTabs::clearingOrder())
        window.field(CalcTabs::name(field)).setText(QStringLiteral("0.5"));

    window.press(QStringLiteral("Command8(1)"));

    for (const Field field : CalcTabs::clearingOrder())
        QCOMPARE(window.text(CalcTabs::name(field)), QString());
    QVERIFY(window.get<QRadioButton>(QStringLiteral("Option10(1)")).isChecked());
    QCOMPARE(window.get<TabStrip>(QStringLiteral("TabStrip4")).selectedTab(), 6);
}

void CalculationsPaneTest::fractionsFollowTheKeys()
{
    Window window;
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
    Window window;
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
    Window window;
    window.module.OptionSlots(Slot::Decimals) = 2;
    window.clickTab(QStringLiteral("TabStrip4"), 4);
    window.type(QStringLiteral("TextBoxM7(6)"), QStringLiteral("1.2345"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM7(6)")), QStringLiteral("1.23"));
    QCOMPARE(window.get<TextBoxM>(QStringLiteral("TextBoxM7(14)")).decimales(), 2);
    QCOMPARE(window.get<TextBoxM>(QStringLiteral("TextBoxM3")).decimales(), 10);
}

void CalculationsPaneTest::aLiquidEmptiesItsTabAndChangesTheResult()
{
    Window window;
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
    Window window;
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
    Window window;
    QStringList labelled;
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            labelled << label->buddy()->objectName();
    }
    for (const TextBoxM *field : window.findChildren<TextBoxM *>())
        QVERIFY2(labelled.contains(field->objectName()), qPrintable(field->objectName()));
}

void CalculationsPaneTest::conversionsFollowTheKeysAndTheLists()
{
    Window window;
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
    for (int list = 1; list <= UnitLists::Count; ++list)
        QCOMPARE(window.isShown(QStringLiteral("List%1").arg(list)), list == 7 || list == 8);
    window.type(input, QStringLiteral("-"));
    QCOMPARE(window.text(result), QString());
    window.type(input, QStringLiteral("40"));
    QCOMPARE(window.text(result), QStringLiteral("-40"));
    window.field(input).selectAll();
    QTest::keyClick(&window.field(input), Qt::Key_Delete);
    QCOMPARE(window.text(result), QStringLiteral("0"));

    window.clickTab(QStringLiteral("TabStrip3"), 1);
    QCOMPARE(window.get<QListWidget>(QStringLiteral("List1")).currentRow(), 12);
}

void CalculationsPaneTest::aPastedNumberConvertsAtOnce()
{
    Window window;
    QGuiApplication::clipboard()->setText(QStringLiteral(" 2.5\n"));
    window.field(QStringLiteral("TextBoxM1")).paste();
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QStringLiteral("2.5"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("2500"));
}

void CalculationsPaneTest::theResultOfAConversionTakesNoKeys()
{
    Window window;
    window.type(QStringLiteral("TextBoxM2"), QStringLiteral("-.5"));
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("0"));
}

void CalculationsPaneTest::aUnitWithoutItsSymbolEndsInTheReport()
{
    Window window;
    window.clickTab(QStringLiteral("TabStrip3"), 2);
    window.type(QStringLiteral("TextBoxM1"), QStringLiteral("1"));
    window.get<QListWidget>(QStringLiteral("List1")).currentItem()->setText(QStringLiteral("kilometer"));
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, window.get<TabStrip>(QStringLiteral("TabStrip3")).selectTab(1));
    QVERIFY(window.desktop.boxes.constFirst().first.startsWith(QLatin1String("Run-time error '9'")));
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QStringLiteral("1"));
}

void CalculationsPaneTest::constantsAndUnitsShowOneListATab()
{
    Window window;
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
    }
}

void CalculationsPaneTest::anOkOfTheOptionsEmptiesTheEntries()
{
    Window window;
    for (const Field field : CalcTabs::clearingOrder())
        window.field(CalcTabs::name(field)).setText(QStringLiteral("0.5"));
    window.type(QStringLiteral("TextBoxM1"), QStringLiteral("1"));

    window.pane.emptyEntryFields();

    for (const Field field : CalcTabs::clearingOrder())
        QCOMPARE(window.text(CalcTabs::name(field)).isEmpty(), field < Ci || field > PStar);
    QCOMPARE(window.text(QStringLiteral("TextBoxM1")), QString());
    QCOMPARE(window.text(QStringLiteral("TextBoxM2")), QStringLiteral("0"));
}

QTEST_MAIN(CalculationsPaneTest)
#include "calculations_pane_test.moc"
