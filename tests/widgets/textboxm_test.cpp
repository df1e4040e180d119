#include "tests/support/files.h"
#include "widgets/fieldhint.h"
#include "widgets/textboxm.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

/// All of it runs in two locales; "." in the rows is the separator of the locale.
class TextBoxMTest final : public QObject
{
    Q_OBJECT

    static bool comma() { return qEnvironmentVariable("LC_ALL") == "de_DE.UTF-8"; }
    static QString local(QString text) { return comma() ? text.replace('.', ',') : text; }

private Q_SLOTS:
    void typing()
    {
        constexpr auto Plain = TextBoxM::UnsignedNumber, Signed = TextBoxM::SignedNumber;
        for (const auto &[entry, decimales, maxlength, keys, text] :
             {std::tuple<TextBoxM::Entry, int, int, const char *, const char *>{Plain, 10, 23, "12.50",
                                                                                "12.50"},
              {Plain, 10, 23, ".", "0."},
              {Plain, 10, 23, ".5", "0.5"},
              {Plain, 10, 23, "1,5", "1.5"}, // the other separator
              {Plain, 10, 23, "1.2.3", "1.23"},
              {Plain, 10, 23, "1a 2E3+", "123"},
              {Plain, 10, 23, "-5", "5"},
              {Signed, 10, 23, "-5", "-5"},
              {Signed, 10, 23, "-", "-"},
              {Signed, 10, 23, "5--", "5"},
              {Signed, 10, 23, "-.5", "-0.5"},
              {Plain, 3, 23, "1.23456", "1.234"},
              {Plain, 0, 23, "1.5", "15"},
              {Plain, 10, 0, "12.50", "12.50"},    // of any length
              {Signed, 10, 5, "-12.345", "-12.3"}, // the length counts every character
              {TextBoxM::AnyText, 0, 0, "di, 1.5", "di, 1.5"}}) {
            TextBoxM box(entry, decimales, maxlength);
            QTest::keyClicks(&box, keys);
            QVERIFY2(box.text() == (entry == TextBoxM::AnyText ? text : local(text)), keys);
        }
    }

    void pasting()
    {
        for (const auto &[pasted, withPoint, withComma] :
             {std::tuple<const char *, const char *, const char *>{"1.5", "1.5", "1,5"},
              {"1,5", "1.5", "1,5"},
              {"-1,234", "7", "-1,234"}, // may be thousands where a comma groups
              {"12.345", "12.345", "7"},
              {"0,125", "0.125", "0,125"}, // three decimals of less than 1
              {"1,234.5", "7", "7"},
              {"1.234,5", "7", "7"},
              {"1 234", "7", "7"},
              {" 12.5\n", "12.5", "12,5"}, // cell of a table
              {"6.02214076E23", "6.02214076E23", "6,02214076E23"},
              {"-2.42631023538e-12", "-2.4263102354E-12", "-2,4263102354E-12"},
              {"0.666666666666667", "0.6666666667", "0,6666666667"},
              {"9.99999999999999", "10.0000000000", "10,0000000000"},                             // carries
              {"12345678901234567890.123", "12345678901234567890.12", "12345678901234567890,12"}, // length
              {"0.00000000001", "7", "7"},
              {"infinite", "7", "7"},
              {"123456789012345678901234", "7", "7"}}) {
            TextBoxM box(TextBoxM::SignedNumber, 10, 23);
            QTest::keyClicks(&box, "7");
            QGuiApplication::clipboard()->setText(pasted);
            box.selectAll();
            box.paste();
            QVERIFY2(box.text() == (comma() ? withComma : withPoint), pasted);
            QCOMPARE(box.accessibleDescription().isEmpty(), box.text() != "7"); // a refusal is told
        }
    }

    void aRefusalIsMarkedUntilTheNextAcceptedKey()
    {
        TextBoxM box(TextBoxM::UnsignedNumber, 10, 23);
        const auto marked = [&] {
            const bool hasIcon = !box.actions().isEmpty() && box.actions().constFirst()->isVisible();
            return hasIcon && box.accessibleDescription().contains("10 decimals");
        };
        box.show();
        QTest::keyClicks(&box, "1");
        QVERIFY(!marked());
        QTest::keyClicks(&box, "e");
        QVERIFY(marked());
        const auto *hint = box.findChild<FieldHint *>();
        QVERIFY(hint->isVisible());
        QCOMPARE(hint->text(), box.accessibleDescription());
        QVERIFY(hint->text().startsWith("\"e\" is not taken"));
        QTest::keyClicks(&box, "5");
        QVERIFY(!marked() && box.accessibleDescription().isEmpty());

        QTest::keyClicks(&box, "-");
        QVERIFY(marked());
        QFocusEvent leaving(QEvent::FocusOut);
        QCoreApplication::sendEvent(&box, &leaving);
        QVERIFY(!marked() && hint->isHidden());
        QCOMPARE(box.text(), "15");
    }

    void whatTheProgramWritesIsNeverCutAndUndoBringsItBackWhole()
    {
        TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
        for (const QString &text :
             {local("-1.23456789012345E-100"), QString("7"), local("0.333333333333333")}) {
            box.setText(text);
            QCOMPARE(box.text(), text);
        }
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box.text(), local("0.333333333333333"));
        box.setText("1E-20");
        QTest::keyClicks(&box, "x5."); // typing into it is still judged
        QCOMPARE(box.text(), "1E-20");
        box.selectAll();
        QTest::keyClicks(&box, "42");
        QCOMPARE(box.text(), "42");
    }

    void fromAWrittenTextTheUserMayTakeAwayWhileANumberIsLeft()
    {
        for (const auto &[written, position, backspaces, left] : {
                 std::tuple<const char *, int, int, const char *>{"0.123456789", 11, 1,
                                                                  "0.12345678"}, // still too many decimals
                 {"1.5E-20", 7, 1, "1.5E-2"},
                 {"1.5E-20", 7, 2, "1.5"}, // an exponent without digits goes whole
                 {"1.5E-20", 7, 5, ""},
                 {"1E-20", 1, 1, "1E-20"},  // no number would be left
                 {"1E-320", 3, 1, "1E-320"} // too large a number would be left
             }) {
            TextBoxM box(TextBoxM::UnsignedNumber, 2, 5);
            box.setText(local(written));
            box.setCursorPosition(position);
            for (int press = 0; press < backspaces; ++press)
                QTest::keyClick(&box, Qt::Key_Backspace);
            QCOMPARE(box.text(), local(left));
        }
    }

    void theSameWhereTheLocaleWritesAComma() { runAgainIn("de_DE.UTF-8", {}); }
};

const TestClass<TextBoxMTest> textBoxMTest;
#include "textboxm_test.moc"
