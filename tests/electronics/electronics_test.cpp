#include "core/runtimeerror.h"
#include "electronics/eia96.h"
#include "electronics/resistorcode.h"
#include "tests/support/tsvsource.h"

#include <QTest>

class ElectronicsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void realResistors_data();
    void realResistors();
    void aNameThatOccursTwiceCountsWhereItStandsLast();
    void aCellWithoutANumberIsATypeMismatch();
    void markings_data();
    void markings();

private:
    DataStore m_store;
};

namespace {

const ResistorCode::Ring &ringOf(int list)
{
    return ResistorCode::rings()[size_t(list - 4)];
}

/// Chooses a colour as the pane does: by its place in the list.
void choose(ResistorCode &code, const DataStore &store, int list, const QString &colour)
{
    const RowList &items = store.lists.Combo2[list];
    for (int position = 0; position < items.rowCount(); ++position) {
        if (items.text(position) == colour) {
            QVERIFY(code.choose(ringOf(list), position, colour));
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no %1 in list %2").arg(colour).arg(list)));
}

} // namespace

void ElectronicsTest::initTestCase()
{
    TsvSource::load(32, QStringLiteral("Resistancescouleurs"), m_store);
}

void ElectronicsTest::realResistors_data()
{
    QTest::addColumn<QString>("rings");
    QTest::addColumn<QList<int>>("lists");
    QTest::addColumn<QString>("resistance");
    QTest::addColumn<QString>("tolerance");
    QTest::addColumn<QString>("temperature");
    const QList<int> three{4, 5, 7};
    const QList<int> four{4, 5, 7, 8};
    const QList<int> five{4, 5, 6, 7, 8};
    const QList<int> six{4, 5, 6, 7, 8, 9};

    QTest::newRow("yellow violet red gold") << "Yellow Violet Red Gold" << four << "4700"
                                            << "5"
                                            << "";
    QTest::newRow("yellow violet orange") << "Yellow Violet Orange" << three << "47000"
                                          << "20"
                                          << "";
    QTest::newRow("less than an ohm") << "Red Red Silver Brown" << four << "0.22"
                                      << "1"
                                      << "";
    QTest::newRow("leading zero") << "Black Green Gold Silver" << four << "0.5"
                                  << "10"
                                  << "";
    QTest::newRow("precision, 5 rings") << "Brown Black Black Red Brown" << five << "10000"
                                        << "1"
                                        << "";
    QTest::newRow("precision, 6 rings") << "Orange Orange White Black Brown Red" << six << "339"
                                        << "1"
                                        << "50";
    QTest::newRow("the last row as a digit") << "White White White Violet Violet Grey" << six << "9990000000"
                                             << "0.1"
                                             << "1";
}

void ElectronicsTest::realResistors()
{
    QFETCH(const QString, rings);
    QFETCH(const QList<int>, lists);
    QFETCH(const QString, resistance);
    QFETCH(const QString, tolerance);
    QFETCH(const QString, temperature);
    ResistorCode code(m_store.tables.ResistorColourData);

    const QStringList colours = rings.split(QLatin1Char(' '));
    for (int i = 0; i < lists.size(); ++i)
        choose(code, m_store, lists[i], colours[i]);

    const ResistorCode::Fields fields = code.result(QString::number(lists.size()));
    QCOMPARE(fields.resistance, resistance);
    QCOMPARE(fields.tolerance, tolerance);
    QCOMPARE(fields.temperature.value_or(QString()), temperature);
}

void ElectronicsTest::aNameThatOccursTwiceCountsWhereItStandsLast()
{
    auto colours = std::make_unique<ResistorCode::Colours>();
    const auto set = [&](int row, const char *name, const char *tolerance, const char *colour) {
        (*colours)(row, 0) = QString::fromLatin1(name);
        (*colours)(row, 5) = QString::fromLatin1(tolerance);
        (*colours)(row, 7) = QString::fromLatin1(colour);
    };
    set(1, "Gold", "5", "255");
    set(7, "Gold", "4", "16711680"); // blue is the highest byte
    ResistorCode code(*colours);

    const auto paint = code.choose(ringOf(8), 0, QStringLiteral("Gold"));
    QVERIFY(paint);
    QCOMPARE(paint->red, 0);
    QCOMPARE(paint->blue, 255);
    QVERIFY(!code.choose(ringOf(8), 0, QStringLiteral("Red")));
}

void ElectronicsTest::aCellWithoutANumberIsATypeMismatch()
{
    ResistorCode code(m_store.tables.ResistorColourData);
    choose(code, m_store, 4, QStringLiteral("Red"));
    choose(code, m_store, 5, QStringLiteral("Red"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, code.result(QStringLiteral("3"))); // no multiplier
    QVERIFY_THROWS_EXCEPTION(RuntimeError, code.choose(ringOf(9), 0, QStringLiteral("Green")));
}

void ElectronicsTest::markings_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("valeur");
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QString>("marking");
    QTest::addColumn<QString>("value");

    QTest::newRow("01Y") << "01"
                         << "100"
                         << "Y"
                         << "01|Y"
                         << "1";
    QTest::newRow("96F") << "96"
                         << "976"
                         << "F"
                         << "96|F"
                         << "97600000";
    QTest::newRow("68X") << "68"
                         << "499"
                         << "X"
                         << "68|X"
                         << "49.9";
    QTest::newRow("01F") << "01"
                         << "100"
                         << "F"
                         << "01|F"
                         << "10000000";
    QTest::newRow("letter first") << ""
                                  << ""
                                  << "C"
                                  << "|C"
                                  << "none";
    QTest::newRow("code first") << "01"
                                << "100"
                                << ""
                                << "01|"
                                << "none";
    QTest::newRow("neither") << ""
                             << ""
                             << ""
                             << "|"
                             << "none";
    QTest::newRow("letter with blanks") << ""
                                        << ""
                                        << " B "
                                        << "|B"
                                        << "none";
}

void ElectronicsTest::markings()
{
    QFETCH(const QString, code);
    QFETCH(const QString, valeur);
    QFETCH(const QString, letter);
    const Eia96::Marking marking = Eia96::decode(code, valeur, letter);
    QTEST(marking.code + QLatin1Char('|') + marking.letter, "marking");
    QTEST(marking.value.value_or(QStringLiteral("none")), "value");
}

QTEST_MAIN(ElectronicsTest)
#include "electronics_test.moc"
