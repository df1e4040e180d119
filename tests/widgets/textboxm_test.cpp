#include "widgets/fieldhint.h"
#include "widgets/textboxm.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

/// The rows that need another locale run in a process of their own, whose environment names it.
class TextBoxMTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data();
    void typing();
    void pasting_data();
    void pasting();
    void aRefusalIsMarkedUntilTheNextAcceptedKey();
    void undoBringsAWrittenTextBackWhole();
    void whatTheProgramWritesIsNeverCut();
    void fromAWrittenTextTheUserMayTakeAwayWhileANumberIsLeft_data();
    void fromAWrittenTextTheUserMayTakeAwayWhileANumberIsLeft();
    void typingIntoAWrittenTextIsStillJudged();
    void aHandlerMayWriteAgainWhileAChangeIsTold();
    void theSameWhereTheLocaleWritesAComma();

private:
    static bool comma() { return qEnvironmentVariable("LC_ALL") == QLatin1String("de_DE.UTF-8"); }

    /// "." in the rows stands for the locale's separator.
    static QString local(QString text)
    {
        return comma() ? text.replace(QLatin1Char('.'), QLatin1Char(',')) : text;
    }
};

void TextBoxMTest::typing_data()
{
    QTest::addColumn<int>("tipodedato");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<int>("maxlength");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    const int number = TextBoxM::UnsignedNumber;
    const int with = TextBoxM::SignedNumber;
    QTest::newRow("plain") << number << 10 << 23 << "12.50"
                           << "12.50";
    QTest::newRow("separator alone gets its zero") << number << 10 << 23 << "."
                                                   << "0.";
    QTest::newRow("then digits follow") << number << 10 << 23 << ".5"
                                        << "0.5";
    QTest::newRow("the other separator") << number << 10 << 23 << "1,5"
                                         << "1.5";
    QTest::newRow("second separator") << number << 10 << 23 << "1.2.3"
                                      << "1.23";
    QTest::newRow("letters, blanks, exponents") << number << 10 << 23 << "1a 2E3+"
                                                << "123";
    QTest::newRow("minus refused") << number << 10 << 23 << "-5"
                                   << "5";
    QTest::newRow("minus allowed") << with << 10 << 23 << "-5"
                                   << "-5";
    QTest::newRow("minus alone") << with << 10 << 23 << "-"
                                 << "-";
    QTest::newRow("minus in front only") << with << 10 << 23 << "5--"
                                         << "5";
    QTest::newRow("minus and separator") << with << 10 << 23 << "-.5"
                                         << "-0.5";
    QTest::newRow("too many decimals") << number << 3 << 23 << "1.23456"
                                       << "1.234";
    QTest::newRow("no decimals") << number << 0 << 23 << "1.5"
                                 << "15";
    QTest::newRow("length counts every character") << with << 10 << 5 << "-12.345"
                                                   << "-12.3";
    QTest::newRow("free text") << int(TextBoxM::AnyText) << 0 << 0 << "di, 1.5"
                               << "di, 1.5";
}

void TextBoxMTest::typing()
{
    QFETCH(int, tipodedato);
    QFETCH(int, decimales);
    QFETCH(int, maxlength);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    TextBoxM box(TextBoxM::Entry(tipodedato), decimales, maxlength);

    QTest::keyClicks(&box, keys);

    QCOMPARE(box.text(), tipodedato == TextBoxM::AnyText ? text : local(text));
}

void TextBoxMTest::pasting_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("withPoint");
    QTest::addColumn<QString>("withComma");
    QTest::newRow("point") << "1.5"
                           << "1.5"
                           << "1,5";
    QTest::newRow("comma") << "1,5"
                           << "1.5"
                           << "1,5";
    QTest::newRow("comma that may be one of thousands") << "-1,234"
                                                        << "7"
                                                        << "-1,234";
    QTest::newRow("point that may be one of thousands") << "12.345"
                                                        << "12.345"
                                                        << "7";
    QTest::newRow("three decimals of less than 1") << "0,125"
                                                   << "0.125"
                                                   << "0,125";
    QTest::newRow("English groups") << "1,234.5"
                                    << "7"
                                    << "7";
    QTest::newRow("German groups") << "1.234,5"
                                   << "7"
                                   << "7";
    QTest::newRow("groups by blanks") << "1 234"
                                      << "7"
                                      << "7";
    QTest::newRow("cell of a table") << " 12.5\n"
                                     << "12.5"
                                     << "12,5";
    QTest::newRow("constant") << "6.02214076E23"
                              << "6.02214076E23"
                              << "6,02214076E23";
    QTest::newRow("constant with many decimals") << "-2.42631023538e-12"
                                                 << "-2.4263102354E-12"
                                                 << "-2,4263102354E-12";
    QTest::newRow("result of 15 digits") << "0.666666666666667"
                                         << "0.6666666667"
                                         << "0,6666666667";
    QTest::newRow("rounding carries") << "9.99999999999999"
                                      << "10.0000000000"
                                      << "10,0000000000";
    QTest::newRow("rounded to the length") << "12345678901234567890.123"
                                           << "12345678901234567890.12"
                                           << "12345678901234567890,12";
    QTest::newRow("nothing is left") << "0.00000000001"
                                     << "7"
                                     << "7";
    QTest::newRow("words") << "infinite"
                           << "7"
                           << "7";
    QTest::newRow("too long") << "123456789012345678901234"
                              << "7"
                              << "7";
}

void TextBoxMTest::pasting()
{
    QFETCH(QString, pasted);
    QFETCH(QString, withPoint);
    QFETCH(QString, withComma);
    TextBoxM box(TextBoxM::SignedNumber, 10, 23);
    QTest::keyClicks(&box, QStringLiteral("7"));
    QGuiApplication::clipboard()->setText(pasted);

    box.selectAll();
    box.paste();

    QCOMPARE(box.text(), comma() ? withComma : withPoint);
    QCOMPARE(!box.accessibleDescription().isEmpty(), box.text() == QLatin1String("7"));
}

void TextBoxMTest::aRefusalIsMarkedUntilTheNextAcceptedKey()
{
    TextBoxM box(TextBoxM::UnsignedNumber, 10, 23);
    const auto marked = [&] {
        const bool hasIcon = !box.actions().isEmpty() && box.actions().constFirst()->isVisible();
        return hasIcon && box.accessibleDescription().contains(QLatin1String("10 decimals"));
    };
    box.show();
    QTest::keyClicks(&box, QStringLiteral("1"));
    QVERIFY(!marked());
    QTest::keyClicks(&box, QStringLiteral("e"));
    QVERIFY(marked());
    const auto *hint = box.findChild<FieldHint *>();
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), box.accessibleDescription());
    QVERIFY(hint->text().startsWith(QLatin1String("\"e\" is not taken")));
    QTest::keyClicks(&box, QStringLiteral("5"));
    QVERIFY(!marked());
    QVERIFY(box.accessibleDescription().isEmpty());

    QTest::keyClicks(&box, QStringLiteral("-"));
    QVERIFY(marked());
    QFocusEvent leaving(QEvent::FocusOut);
    QCoreApplication::sendEvent(&box, &leaving);
    QVERIFY(!marked() && hint->isHidden());
    QCOMPARE(box.text(), QStringLiteral("15"));
}

void TextBoxMTest::undoBringsAWrittenTextBackWhole()
{
    TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
    box.setText(local("0.123456789"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box.text(), local("0.123456789"));
}

void TextBoxMTest::whatTheProgramWritesIsNeverCut()
{
    TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
    for (const QString &text :
         {local("-1.23456789012345E-100"), QStringLiteral("7"), local("0.333333333333333")}) {
        box.setText(text);
        QCOMPARE(box.text(), text);
    }
}

void TextBoxMTest::fromAWrittenTextTheUserMayTakeAwayWhileANumberIsLeft_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("backspaces");
    QTest::addColumn<QString>("left");
    QTest::newRow("too many decimals") << "0.123456789" << 11 << 1 << "0.12345678";
    QTest::newRow("exponent") << "1.5E-20" << 7 << 1 << "1.5E-2";
    QTest::newRow("exponent without digits goes whole") << "1.5E-20" << 7 << 2 << "1.5";
    QTest::newRow("on to nothing") << "1.5E-20" << 7 << 5 << "";
    QTest::newRow("no number would be left") << "1E-20" << 1 << 1 << "1E-20";
    QTest::newRow("too large a number would be left") << "1E-320" << 3 << 1 << "1E-320";
}

void TextBoxMTest::fromAWrittenTextTheUserMayTakeAwayWhileANumberIsLeft()
{
    QFETCH(QString, written);
    QFETCH(int, position);
    QFETCH(int, backspaces);
    QFETCH(QString, left);
    TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
    box.setText(local(written));
    box.setCursorPosition(position);

    for (int press = 0; press < backspaces; ++press)
        QTest::keyClick(&box, Qt::Key_Backspace);

    QCOMPARE(box.text(), local(left));
}

void TextBoxMTest::typingIntoAWrittenTextIsStillJudged()
{
    TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
    box.setText(QStringLiteral("1E-20"));
    QTest::keyClicks(&box, QStringLiteral("x5."));
    QCOMPARE(box.text(), QStringLiteral("1E-20"));

    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("42"));
    QCOMPARE(box.text(), QStringLiteral("42"));
}

void TextBoxMTest::aHandlerMayWriteAgainWhileAChangeIsTold()
{
    TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
    QStringList told;
    connect(&box, &QLineEdit::textChanged, &box, [&](const QString &text) {
        told << text;
        if (text == QLatin1String("2"))
            box.setText(QStringLiteral("1E-20"));
    });

    QTest::keyClicks(&box, QStringLiteral("2"));
    QTest::keyClicks(&box, QStringLiteral("x"));

    QCOMPARE(told, (QStringList{"2", "1E-20"}));
    QCOMPARE(box.text(), QStringLiteral("1E-20"));
}

void TextBoxMTest::theSameWhereTheLocaleWritesAComma()
{
    if (comma())
        return;
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    again.setProcessEnvironment(environment);
    again.start(QCoreApplication::applicationFilePath(), {});
    QVERIFY(again.waitForFinished());
    QVERIFY2(again.exitCode() == 0, again.readAllStandardOutput());
}

QTEST_MAIN(TextBoxMTest)
#include "textboxm_test.moc"
