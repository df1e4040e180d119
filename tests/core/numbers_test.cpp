#include "core/numbers.h"

#include <QProcess>
#include <QTest>

class NumbersTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenReadsBackInEveryLocale_data();
    void whatIsWrittenReadsBackInEveryLocale();
};

void NumbersTest::whatIsWrittenReadsBackInEveryLocale_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::newRow("comma") << QByteArray("de_DE.UTF-8");
    QTest::newRow("narrow blanks between groups") << QByteArray("fr_FR.UTF-8");
    QTest::newRow("exponent of several characters") << QByteArray("sv_SE.UTF-8");
    QTest::newRow("minus of its own") << QByteArray("nb_NO.UTF-8");
    QTest::newRow("marks of direction") << QByteArray("he_IL.UTF-8");
    QTest::newRow("digits of its own") << QByteArray("ar_EG.UTF-8");
}

// The locale is read once in a process, so each row is a process of its own; without the argument for a row
// it is the one that starts them.
void NumbersTest::whatIsWrittenReadsBackInEveryLocale()
{
    QFETCH(QByteArray, locale);
    if (qgetenv("LC_ALL") == locale) {
        for (const double number : {-1.5E-20, 6.25E+23, -0.375, 1234567.5, 1E-5, 0.0})
            QCOMPARE(Numbers::parseLocal(Numbers::formatLocal(number)), number);
        QCOMPARE(Numbers::formatLocal(-1.5E-20),
                 QStringLiteral("-1") + Numbers::decimalPoint() + QStringLiteral("5E-20"));
        return;
    }
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(locale));
    again.setProcessEnvironment(environment);
    again.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("whatIsWrittenReadsBackInEveryLocale:") +
                 QString::fromUtf8(QTest::currentDataTag())});
    QVERIFY(again.waitForFinished());
    QVERIFY2(again.exitCode() == 0, again.readAllStandardOutput());
}

QTEST_GUILESS_MAIN(NumbersTest)
#include "numbers_test.moc"
