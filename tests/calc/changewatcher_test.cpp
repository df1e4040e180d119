#include "calc/changewatcher.h"

#include "core/runtimeerror.h"
#include "fieldrows.h"

using namespace CalcFields;

/// Fields that report a change when, and only when, they get a different text: the way the pane's fields do.
class WatchedFields
{
public:
    QStringList log; ///< every text that went in, and every message

    void write(Field field, const QString &text)
    {
        if (m_texts[field] == text)
            return;
        m_texts[field] = text;
        log << FieldRows::row({{field, text}});
        if (log.size() > 20)
            qFatal("the watcher does not settle");
        const ChangeWatcher::Reaction reaction = ChangeWatcher::react(field, m_texts);
        if (!reaction.message.isEmpty())
            log << reaction.message;
        for (const Change &change : reaction.changes)
            write(change.field, change.text);
    }

    /// One text after the other, as keys make them: "0", "0.", "0.3".
    void type(Field field, const QString &text)
    {
        for (int length = 1; length <= text.size(); ++length)
            write(field, text.first(length));
    }

    QString text(Field field) const { return m_texts[field]; }

private:
    FieldTexts m_texts;
};

class ChangeWatcherTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingAFractionFillsItsPartnerStepByStep();
    void everyPairWorksBothWays_data();
    void everyPairWorksBothWays();
    void zeroAndItsSeparatorSurviveTheEchoOfThePartner();
    void emptyingOneEmptiesBoth();
    void aFractionAbove1IsRefusedAndBothComeOutEmpty();
    void aFractionOf1IsAllowed();
    void aRatioStaysBelow1_data();
    void aRatioStaysBelow1();
    void otherFieldsAreLeftAlone();
    void aTextThatIsNoNumberMeetsNoTrap();
    void theLocaleOfTheDesktop();
    void theSameInOtherLocales();
};

void ChangeWatcherTest::typingAFractionFillsItsPartnerStepByStep()
{
    WatchedFields fields;
    fields.type(Xn1, QStringLiteral("0.35"));
    QCOMPARE(fields.log,
             (QStringList{"Xn1=0", "Xn2=1", "Xn1=0.", "Xn1=0.3", "Xn2=0.7", "Xn1=0.35", "Xn2=0.65"}));
    // 1 - 0.94 is 0.0600000000000001, which must not take the place of the 0.06 under the cursor.
    fields.type(Xm1, QStringLiteral("0.065"));
    QCOMPARE(fields.log.mid(7), (QStringList{"Xm1=0", "Xm2=1", "Xm1=0.", "Xm1=0.0", "Xm1=0.06", "Xm2=0.94",
                                             "Xm1=0.065", "Xm2=0.935"}));
}

void ChangeWatcherTest::everyPairWorksBothWays_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<int>("partner");
    QTest::newRow("Xn1") << int(Xn1) << int(Xn2);
    QTest::newRow("Xn2") << int(Xn2) << int(Xn1);
    QTest::newRow("Xm1") << int(Xm1) << int(Xm2);
    QTest::newRow("Xm2") << int(Xm2) << int(Xm1);
}

void ChangeWatcherTest::everyPairWorksBothWays()
{
    QFETCH(int, field);
    QFETCH(int, partner);
    WatchedFields fields;
    fields.type(Field(field), QStringLiteral("0.10"));
    QCOMPARE(fields.text(Field(field)), QStringLiteral("0.10"));
    QCOMPARE(fields.text(Field(partner)), QStringLiteral("0.9"));
}

// The partner still holds its own text when the separator comes: its change must not be answered.
void ChangeWatcherTest::zeroAndItsSeparatorSurviveTheEchoOfThePartner()
{
    WatchedFields fields;
    fields.write(Xn2, QStringLiteral("0.25"));
    fields.write(Xn1, QStringLiteral("0."));
    QCOMPARE(fields.text(Xn1), QStringLiteral("0."));
    QCOMPARE(fields.text(Xn2), QStringLiteral("1"));
}

void ChangeWatcherTest::emptyingOneEmptiesBoth()
{
    WatchedFields fields;
    fields.write(Xm1, QStringLiteral("0.25"));
    fields.write(Xm2, {});
    QCOMPARE(fields.text(Xm1), QString());
    QCOMPARE(fields.log.size(), 4);
}

void ChangeWatcherTest::aFractionAbove1IsRefusedAndBothComeOutEmpty()
{
    WatchedFields fields;
    fields.type(Xm2, QStringLiteral("1.5"));
    QCOMPARE(fields.log, (QStringList{"Xm2=1", "Xm1=0", "Xm2=1.", "Xm2=1.5",
                                      "Please use a value between 0 and 1", "Xm2=", "Xm1="}));
}

void ChangeWatcherTest::aFractionOf1IsAllowed()
{
    WatchedFields fields;
    fields.write(Xn1, QStringLiteral("1"));
    QCOMPARE(fields.log, (QStringList{"Xn1=1", "Xn2=0"}));
}

void ChangeWatcherTest::aRatioStaysBelow1_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("refused");
    QTest::newRow("below") << "0.999" << false;
    QTest::newRow("1") << "1" << true;
    QTest::newRow("written by the calculation") << "1.11111111111111" << true;
    QTest::newRow("by a large margin") << "1E+20" << true;
}

void ChangeWatcherTest::aRatioStaysBelow1()
{
    QFETCH(QString, text);
    QFETCH(bool, refused);
    WatchedFields fields;
    fields.write(T, text);
    QCOMPARE(fields.text(T), refused ? QString() : text);
    QCOMPARE(fields.log.contains(QLatin1String("Please use a value between 0 and 1")), refused);
}

void ChangeWatcherTest::otherFieldsAreLeftAlone()
{
    WatchedFields fields;
    for (const Field field : {M1, M2, Ci, Vi, Cf, Vf, Tc, P, TcStar, PStar})
        fields.write(field, QStringLiteral("5"));
    QCOMPARE(fields.log.size(), 10);
}

void ChangeWatcherTest::aTextThatIsNoNumberMeetsNoTrap()
{
    WatchedFields fields;
    try {
        fields.write(Xn1, QStringLiteral("abc"));
        QFAIL("no error");
    } catch (const RuntimeError &error) {
        QCOMPARE(error.number(), ErrorNumber::TypeMismatch);
    }
}

void ChangeWatcherTest::theLocaleOfTheDesktop()
{
    if (!isRunAgain())
        return;
    WatchedFields fields;
    fields.type(Xn1, QStringLiteral("0,35"));
    QCOMPARE(fields.log,
             (QStringList{"Xn1=0", "Xn2=1", "Xn1=0,", "Xn1=0,3", "Xn2=0,7", "Xn1=0,35", "Xn2=0,65"}));
    fields.write(Xn1, QStringLiteral("0,"));
    QCOMPARE(fields.text(Xn1), QStringLiteral("0,"));
    QCOMPARE(fields.text(Xn2), QStringLiteral("1"));
}

void ChangeWatcherTest::theSameInOtherLocales()
{
    QCOMPARE(runAgainIn("fr_FR.UTF-8"), 0);
    QCOMPARE(runAgainIn("de_DE.UTF-8"), 0);
}

QTEST_GUILESS_MAIN(ChangeWatcherTest)
#include "changewatcher_test.moc"
