#include "core/runtimeerror.h"
#include "electronics/eia96.h"
#include "electronics/resistorcode.h"
#include "tests/support/testclass.h"
#include "tests/support/tsvsource.h"

class ElectronicsTest final : public QObject
{
    Q_OBJECT

    DataStore m_store;

    static const ResistorCode::Ring &ringOf(int list) { return ResistorCode::rings()[size_t(list - 4)]; }

    /// Chooses a colour as the pane does: by its place in the list.
    void choose(ResistorCode &code, int list, const QString &colour) const
    {
        const RowList &items = m_store.lists.Combo2[list];
        int position = 0;
        while (items.text(position) != colour)
            ++position;
        QVERIFY(code.choose(ringOf(list), position, colour));
    }

private Q_SLOTS:
    void initTestCase() { TsvSource::load(32, "Resistancescouleurs", m_store); }

    void realResistors()
    {
        const QList<int> three{4, 5, 7}, four{4, 5, 7, 8}, five{4, 5, 6, 7, 8}, six{4, 5, 6, 7, 8, 9};
        const struct
        {
            const char *rings;
            QList<int> lists;
            const char *fields; // resistance, tolerance, temperature
        } Rows[]{
            {"Yellow Violet Red Gold", four, "4700 5 "},
            {"Yellow Violet Orange", three, "47000 20 "},
            {"Red Red Silver Brown", four, "0.22 1 "},                         // less than an ohm
            {"Black Green Gold Silver", four, "0.5 10 "},                      // leading zero
            {"Brown Black Black Red Brown", five, "10000 1 "},                 //
            {"Orange Orange White Black Brown Red", six, "339 1 50"},          //
            {"White White White Violet Violet Grey", six, "9990000000 0.1 1"}, // the last row as a digit
        };
        for (const auto &row : Rows) {
            ResistorCode code(m_store.tables.ResistorColourData);
            const QStringList colours = QString(row.rings).split(' ');
            for (int i = 0; i < row.lists.size(); ++i)
                choose(code, row.lists[i], colours[i]);
            const ResistorCode::Fields fields = code.result(QString::number(row.lists.size()));
            const QString temperature = fields.temperature.value_or(QString());
            QCOMPARE(QStringList({fields.resistance, fields.tolerance, temperature}).join(' '), row.fields);
        }
    }

    void aNameThatOccursTwiceCountsWhereItStandsLast()
    {
        auto colours = std::make_unique<ResistorCode::Colours>();
        const auto set = [&](int row, const char *tolerance, const char *colour) {
            (*colours)(row, 0) = "Gold";
            (*colours)(row, 5) = tolerance;
            (*colours)(row, 7) = colour;
        };
        set(1, "5", "255");
        set(7, "4", "16711680"); // blue is the highest byte
        ResistorCode code(*colours);

        const auto paint = code.choose(ringOf(8), 0, "Gold");
        QVERIFY(paint);
        QCOMPARE(paint->red, 0);
        QCOMPARE(paint->blue, 255);
        QVERIFY(!code.choose(ringOf(8), 0, "Red"));
    }

    void aCellWithoutANumberIsATypeMismatch()
    {
        ResistorCode code(m_store.tables.ResistorColourData);
        choose(code, 4, "Red");
        choose(code, 5, "Red");
        QVERIFY_THROWS_EXCEPTION(RuntimeError, code.result("3")); // no multiplier
        QVERIFY_THROWS_EXCEPTION(RuntimeError, code.choose(ringOf(9), 0, "Green"));
    }

    void markings()
    {
        const struct
        {
            const char *code, *valeur, *letter, *expected; // marking and value
        } Rows[]{
            {"01", "100", "Y", "01|Y 1"},    {"96", "976", "F", "96|F 97600000"},
            {"68", "499", "X", "68|X 49.9"}, {"01", "100", "F", "01|F 10000000"},
            {"", "", "C", "|C none"},        {"01", "100", "", "01| none"},
            {"", "", "", "| none"},          {"", "", " B ", "|B none"},
        };
        for (const auto &row : Rows) {
            const Eia96::Marking marking = Eia96::decode(row.code, row.valeur, row.letter);
            QCOMPARE(marking.code + '|' + marking.letter + ' ' + marking.value.value_or("none"),
                     row.expected);
        }
    }
};

const TestClass<ElectronicsTest> electronicsTest;
#include "electronics_test.moc"
