#include "electronics/eia96.h"
#include "electronics/electronicspane.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"

#include <QPushButton>

/// The codes of resistors, and the pane over the delivered colours that shows them.
class ElectronicsTest final : public QObject
{
    Q_OBJECT

    ScriptedDesktop m_desktop;
    std::unique_ptr<DataStore> m_store;
    std::unique_ptr<UnreadTables> m_unread;
    std::unique_ptr<ElectronicsPane> m_pane;

    template<class W>
    W &get(const QString &name) const
    {
        return ::get<W>(*m_pane, name);
    }
    DropDown &list(int index) const { return get<DropDown>(Controls::indexedName("Combo2", index)); }
    DropDown &count() const { return get<DropDown>("Combo3"); }
    QString text(const char *label) const { return get<QLabel>(label).text(); }
    QString field(int index) const { return get<TextBoxM>(Controls::indexedName("tbm", index)).text(); }
    QString results() const { return field(7) + ' ' + field(8) + ' ' + field(9); }
    QWidget &band(int index) const { return get<QWidget>(Controls::indexedName("Shape3", index)); }
    void load() const { get<QPushButton>("cmdReadTables(0)").click(); }
    void choose(int index, const QString &colour) const
    {
        const int position = list(index).findText(colour);
        QVERIFY2(position >= 0, qPrintable(colour));
        list(index).setCurrentIndex(position);
    }
    bool isGrey(const QString &label) const
    {
        const auto &found = get<QLabel>(label);
        return found.palette().color(found.foregroundRole()) == QColor(0xe0, 0xe0, 0xe0);
    }

private Q_SLOTS:
    void init()
    {
        m_desktop.boxes.clear();
        m_store = std::make_unique<DataStore>();
        m_unread = std::make_unique<UnreadTables>(*m_store, m_desktop);
        m_pane = std::make_unique<ElectronicsPane>(*m_store, m_unread->tables, m_desktop, nullptr);
        QEvent early(QEvent::PaletteChange); // before the pane is built
        QCoreApplication::sendEvent(m_pane.get(), &early);
        m_pane->show();
    }
    void cleanup() { m_pane.reset(); }

    void anotherDatabaseEmptiesThePane()
    {
        QCOMPARE(list(4).count() + list(9).count() + get<DropDown>("Combo4").count(), 0);
        QCOMPARE(count().currentText(), "4");
        load();
        QCOMPARE(list(4).count(), 11);
        QCOMPARE(list(4).currentIndex(), -1);
        for (const int index : {4, 5, 7, 8})
            list(index).setCurrentIndex(1);
        get<DropDown>("Combo4").setCurrentIndex(0);
        choose(10, "A");
        QVERIFY(!field(7).isEmpty() && !field(10).isEmpty());
        QVERIFY(get<TextBoxM>("tbm(7)").isReadOnly() && get<TextBoxM>("tbm(10)").isReadOnly());

        m_unread->tables.forget();
        QVERIFY(!Controls::isShown(band(0)));
        QCOMPARE(field(7) + field(8) + field(10) + text("Label18(13)"), QString());
    }

    void ringsAreSwitchedByTheirNumber()
    {
        for (int position = 0; position < 4; ++position) {
            count().setCurrentIndex(position);
            const bool third = position >= 2, tolerance = position >= 1, temperature = position == 3;
            QCOMPARE((QList{list(6).isEnabled(), list(8).isEnabled(), list(9).isEnabled()}),
                     (QList{third, tolerance, temperature}));
            QCOMPARE((QList{isGrey("Label18(10)"), isGrey("Label18(7)"), isGrey("Label18(5)"),
                            isGrey("lbl2(20)")}),
                     (QList{!third, !tolerance, !temperature, !temperature}));
            QVERIFY(list(4).isEnabled() && list(5).isEnabled() && list(7).isEnabled());
        }
    }

    void realResistors()
    {
        load();
        const std::pair<QString, const char *> Rows[]{
            // resistance, tolerance, temperature
            {"Yellow Violet Orange", "47000 20 "},
            {"Yellow Violet Red Gold", "4700 5 "},
            {"Red Red Silver Brown", "0.22 1 "},                          // less than an ohm
            {"Black Green Gold Silver", "0.5 10 "},                       // leading zero
            {"Brown Black Black Red Brown", "10000 1 "},                  //
            {"Orange Orange White Black Brown Red", "339 1 50"},          //
            {"White White White Violet Violet Grey", "9990000000 0.1 1"}, // the last row as a digit
        };
        for (const auto &[names, expected] : Rows) {
            const QStringList colours = names.split(' ');
            const qsizetype rings = colours.size();
            count().setCurrentIndex(rings == 3 ? 1 : 0);
            count().setCurrentIndex(int(rings - 3)); // another number of rings starts anew
            QList lists{4, 5, 6, 7, 8, 9};
            if (rings < 5)
                lists.remove(2);
            for (int ring = 0; ring < rings; ++ring) {
                QCOMPARE(results(), "  "); // waits for the last ring
                QVERIFY(!Controls::isShown(band(ResistorCode::rings()[size_t(lists[ring] - 4)].band)));
                choose(lists[ring], colours[ring]);
            }
            QCOMPARE(results(), expected);
        }
        choose(7, "Black");
        QCOMPARE(field(7), "999");

        int left = 0;
        for (const int index : {0, 1, 2, 3, 5, 4})
            QVERIFY2(band(index).x() > std::exchange(left, band(index).x()),
                     qPrintable(QString::number(index)));
        choose(8, "Brown");
        const QColor brown =
            m_pane->grab().toImage().pixelColor(band(5).mapTo(m_pane.get(), band(5).rect().center()));
        QCOMPARE(brown, QColor(0x8b, 0x45, 0x13));
    }

    void aNameThatOccursTwiceCountsWhereItIsLast()
    {
        auto colours = std::make_unique<ResistorCode::Colours>();
        const auto set = [&](int row, const char *colour) {
            (*colours)(row, 0) = "Gold";
            (*colours)(row, 7) = colour;
        };
        set(1, "255");
        set(7, "16711680"); // blue is the highest byte
        ResistorCode code(*colours);
        const ResistorCode::Ring &tolerance = ResistorCode::rings()[4];
        const auto paint = code.choose(tolerance, 0, "Gold");
        QVERIFY(paint);
        QCOMPARE(paint->red, 0);
        QCOMPARE(paint->blue, 255);
        QVERIFY(!code.choose(tolerance, 0, "Red"));
        for (const auto &[colour, number] : {std::pair("3E9", 6), {"-3E9", 6}, {"blue", 13}}) {
            set(7, colour);
            QCOMPARE(errorOf([&] { code.choose(tolerance, 0, "Gold"); }), number);
        }
    }

    void markings()
    {
        const std::tuple<const char *, const char *, const char *, const char *> Rows[]{
            {"01", "100", "Y", "01|Y 1"},    {"96", "976", "F", "96|F 97600000"},
            {"68", "499", "X", "68|X 49.9"}, {"01", "100", "F", "01|F 10000000"},
            {"", "", "C", "|C none"},        {"01", "100", "", "01| none"},
            {"", "", "", "| none"},          {"", "", " B ", "|B none"},
        };
        for (const auto &[code, value, letter, expected] : Rows) {
            const Eia96::Marking marking = Eia96::decode(code, value, letter);
            QCOMPARE(marking.code + '|' + marking.letter + ' ' + marking.value.value_or("none"), expected);
        }
        load();
        QCOMPARE(list(10).count(), 8);
        choose(10, "F");
        QCOMPARE(text("Label18(13)") + text("Label18(15)") + field(10), "F");
        get<DropDown>("Combo4").setCurrentIndex(95);
        QCOMPARE(text("Label18(13)") + text("Label18(15)") + ' ' + field(10), "96F 97600000");
    }

    void aValueThatIsNoNumberEndsTheProgram()
    {
        m_store->lists.Combo4.append(u"01");
        m_store->lists.Combo4.filled();
        m_store->lists.ListView3[29].append(u"01");
        choose(10, "A");
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, get<DropDown>("Combo4").setCurrentIndex(0));
        QVERIFY(m_desktop.boxes.constFirst().first.startsWith("Run-time error '13':"));
    }
};

const TestClass<ElectronicsTest> electronicsTest;
#include "electronics_test.moc"
