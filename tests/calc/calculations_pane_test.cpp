#include "calc/calctabs.h"
#include "calc/calculationspane.h"
#include "core/module1.h"
#include "store/rowlists.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/controls.h"
#include "widgets/tabstrip.h"
#include "widgets/textboxm.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeView>

/// The pane in a window, with units of the delivered names.
class CalculationsPaneTest final : public QObject
{
    Q_OBJECT

    struct Window : QWidget
    {
        Window()
        {
            module.OptionSlots.read(ALEMBRA_SOURCE "/data/program/options_uk.ini");
            pane.show();
            show();
        }

        Module1 module;
        ScriptedDesktop desktop;
        RowLists lists;
        CalculationsPane pane{module, desktop, lists, this};
    };

    std::unique_ptr<Window> m_window;

    TextBoxM &field(const QString &name) const { return get<TextBoxM>(*m_window, name); }
    QString text(const QString &name) const { return field(name).text(); }
    bool isShown(const QString &name) const { return Controls::isShown(get(*m_window, name)); }
    QString focused() const { return m_window->focusWidget()->objectName(); }
    void press(Qt::Key key) const { QTest::keyClick(m_window->focusWidget(), key); }
    void type(const QString &name, const QString &keys) const
    {
        field(name).setFocus();
        QTest::keyClicks(&field(name), keys);
    }
    void clickTab(const QString &strip, int tab) const
    {
        auto &tabs = get<TabStrip>(*m_window, strip);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    void clickUnit(int list, int row) const
    {
        auto &names = get<QListWidget>(*m_window, QString("List%1").arg(list));
        names.scrollToItem(names.item(row));
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {},
                          names.visualItemRect(names.item(row)).center());
    }
    void click(const QString &button) const { get<QAbstractButton>(*m_window, button).click(); }

    /// The only message that the pane gave, empty if it gave none.
    QString message() const
    {
        const auto boxes = std::exchange(m_window->desktop.boxes, {});
        if (boxes.isEmpty())
            return {};
        const bool isWarning = boxes.size() == 1 && boxes[0].second == Desktop::Warning;
        return isWarning ? boxes[0].first : "not one warning";
    }

private Q_SLOTS:
    void init() { m_window = std::make_unique<Window>(); }

    void enterCalculatesAndASecondTimeComplains()
    {
        type("TextBoxM4", "18");
        type("TextBoxM5", "18.015");
        press(Qt::Key_Return);
        QCOMPARE(text("TextBoxM3"), "0.999167360532889");
        QCOMPARE(message(), QString());
        click("Command8(0)");
        QCOMPARE(message(), "Please leave 1 empty field to perform calculation");
    }

    void noUnitsAreShownWithoutTheirTitle()
    {
        for (int tab = 7; tab >= 1; --tab) {
            clickTab("TabStrip5", tab);
            const auto &list = get<QTreeView>(*m_window, QString("ListView7(%1)").arg(tab - 1));
            QCOMPARE(list.isColumnHidden(3), !isShown("Label2(29)"));
            QCOMPARE(list.isColumnHidden(4), !isShown("Label2(38)"));
        }
    }

    void aTabClickEmptiesItsFieldsAndKeepsThoseOfDilutionAndPressure()
    {
        clickTab("TabStrip4", 4);
        type("TextBoxM7(8)", "0.5");
        clickTab("TabStrip4", 1);
        type("TextBoxM4", "18");
        clickTab("TabStrip4", 1);
        QCOMPARE(text("TextBoxM4"), QString());
        clickTab("TabStrip4", 5);
        type("TextBoxM7(5)", "46");
        clickTab("TabStrip4", 4);
        QCOMPARE(text("TextBoxM7(5)"), QString());
        QCOMPARE(text("TextBoxM7(8)"), "0.5");
    }

    void clearEmptiesAllFieldsAndAnOkOfTheOptionsTheEntries()
    {
        const auto fill = [this] {
            for (const CalcLabel &label : CalcTabs::labels())
                field(CalcTabs::name(label.field)).setText("0.5");
        };
        clickTab("TabStrip4", 6);
        click("Option10(1)");
        fill();
        click("Command8(1)");
        for (const CalcLabel &label : CalcTabs::labels())
            QCOMPARE(text(CalcTabs::name(label.field)), QString());
        QVERIFY(get<QRadioButton>(*m_window, "Option10(1)").isChecked());
        QCOMPARE(get<TabStrip>(*m_window, "TabStrip4").selectedTab(), 6);

        fill();
        type("TextBoxM1", "1");
        m_window->pane.emptyEntryFields();
        using namespace CalcFields;
        for (const CalcLabel &label : CalcTabs::labels())
            QCOMPARE(text(CalcTabs::name(label.field)).isEmpty(), label.field < Ci || label.field > PStar);
        QCOMPARE(text("TextBoxM1") + '|' + text("TextBoxM2"), "|0");
    }

    void aFractionFillsItsPartnerKeyByKey()
    {
        const QString Xn1 = "TextBoxM7(0)", Xn2 = "TextBoxM7(1)", Xm1 = "TextBoxM7(2)", Xm2 = "TextBoxM7(3)";
        const auto texts = [this](const QString &one, const QString &two) {
            return text(one) + ' ' + text(two);
        };
        clickTab("TabStrip4", 5);
        type(Xn1, ".3");
        QCOMPARE(texts(Xn1, Xn2), "0.3 0.7");
        field(Xn1).setCursorPosition(2); // the cursor stays where the user works
        type(Xn1, "12");
        QCOMPARE(texts(Xn1, Xn2), "0.123 0.877");
        field(Xn1).selectAll(); // the partner still has its own text when the separator comes
        type(Xn1, "0.");
        QCOMPARE(texts(Xn1, Xn2), "0. 1");
        type(Xn1, "4");
        QCOMPARE(texts(Xn1, Xn2), "0.4 0.6");
        field(Xn2).selectAll();
        type(Xn2, "0.10");
        QCOMPARE(texts(Xn1, Xn2), "0.9 0.10");
        // 1 - 0.94 is 0.0600000000000001, which must not take the place of the 0.06 under the cursor.
        type(Xm1, "0.065");
        QCOMPARE(texts(Xm1, Xm2), "0.065 0.935");
        field(Xm2).selectAll();
        type(Xm2, "1");
        QCOMPARE(texts(Xm1, Xm2) + message(), "0 1");
        type(Xm2, ".5");
        QCOMPARE(texts(Xm1, Xm2) + message(), " Please use a value between 0 and 1");
    }

    void aFractionWithAComma()
    {
        inLocale("de_DE.UTF-8", [this] {
            clickTab("TabStrip4", 5);
            type("TextBoxM7(0)", "0,35");
            QCOMPARE(text("TextBoxM7(0)") + ' ' + text("TextBoxM7(1)"), "0,35 0,65");
        });
    }

    void aRatioThatTheCalculationWritesIsWatchedToo()
    {
        clickTab("TabStrip4", 4);
        type("TextBoxM7(6)", "9");
        type("TextBoxM7(8)", "10");
        type("TextBoxM7(9)", "1");
        click("Command8(0)");
        QCOMPARE(text("TextBoxM7(7)") + ' ' + text("TextBoxM7(10)"), "1.11111111111111 ");
        QCOMPARE(message(), "Please use a value between 0 and 1");
        type("TextBoxM7(10)", "0.999");
        QCOMPARE(text("TextBoxM7(10)") + message(), "0.999");
        field("TextBoxM7(10)").selectAll();
        type("TextBoxM7(10)", "1");
        QCOMPARE(text("TextBoxM7(10)") + message(), "Please use a value between 0 and 1");
    }

    void theFirstChangeBringsTheDecimalsOfTheOptions()
    {
        m_window->module.OptionSlots(Slot::Decimals) = 2;
        clickTab("TabStrip4", 4);
        type("TextBoxM7(6)", "1.2345");
        QCOMPARE(text("TextBoxM7(6)"), "1.23");
        QCOMPARE(field("TextBoxM7(14)").decimales(), 2);
        QCOMPARE(field("TextBoxM3").decimales(), 10);
    }

    void aLiquidEmptiesItsTabAndChangesTheResult()
    {
        clickTab("TabStrip4", 6);
        QVERIFY(get<QRadioButton>(*m_window, "Option10(3)").isChecked());
        QStringList pressures;
        for (const char *liquid : {"Option10(3)", "Option10(2)", "Option10(1)"}) {
            click(liquid);
            type("TextBoxM7(11)", "-20");
            type("TextBoxM7(13)", "100");
            type("TextBoxM7(14)", "1000");
            click("Command8(0)");
            pressures << text("TextBoxM7(12)").left(5);
        }
        QCOMPARE(message(), QString());
        // 1000 exp(-K / 8.314 (373.15 / 253.15 - 1)) for K = 85, 73 and 109
        QCOMPARE(pressures.join(' '), "7.857 15.57 1.999");
    }

    void conversionsFollowTheKeysAndTheLists()
    {
        QCOMPARE(text("TextBoxM2"), "0");
        clickUnit(1, 12);
        QCOMPARE(text("TextBoxM2"), "0");
        type("TextBoxM1", "1");
        QCOMPARE(text("TextBoxM2"), "1609.344");
        type("TextBoxM2", "-.5"); // takes no keys
        QCOMPARE(text("TextBoxM2"), "1609.344");
        clickUnit(2, 0);
        QCOMPARE(text("TextBoxM2"), "1.609344");
        QTest::keyClick(&get(*m_window, "List2"), Qt::Key_Down);
        QCOMPARE(text("TextBoxM2"), "16.09344");
        QGuiApplication::clipboard()->setText(" 2\n");
        field("TextBoxM1").selectAll();
        field("TextBoxM1").paste();
        QCOMPARE(text("TextBoxM2"), "32.18688");

        clickTab("TabStrip3", 5);
        QCOMPARE(focused(), "TextBoxM1");
        QCOMPARE(text("TextBoxM1") + '|' + text("TextBoxM2"), "|0");
        for (int list = 1; list <= 16; ++list)
            QCOMPARE(isShown(QString("List%1").arg(list)), list == 7 || list == 8);
        type("TextBoxM1", "-");
        QCOMPARE(text("TextBoxM2"), QString());
        type("TextBoxM1", "40");
        QCOMPARE(text("TextBoxM2"), "-40");
        field("TextBoxM1").selectAll();
        press(Qt::Key_Delete);
        QCOMPARE(text("TextBoxM2"), "0");
        clickTab("TabStrip3", 1);
        QCOMPARE(get<QListWidget>(*m_window, "List1").currentRow(), 12);
    }
};

const TestClass<CalculationsPaneTest> calculationsPaneTest;
#include "calculations_pane_test.moc"
