#include "calc/units.h"
#include "tests/support/files.h"

#include <QRegularExpression>
#include <QSet>

/// The text files of the program folder: what the program would stumble over, or show wrongly, if an edit
/// broke it.
class DeliveredFilesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsHaveANameForEachUnitAndNumbersOtherwise()
    {
        const QStringList values = linesOf("options_uk.ini");
        QVERIFY(values.size() >= 90); // those of the first release
        QSet<int> units;
        for (const Quantity &quantity : Units::quantities())
            std::visit(
                [&](const auto &list) {
                    for (const auto &unit : list)
                        units << unit.slot;
                },
                quantity.units);
        QVERIFY(*std::max_element(units.cbegin(), units.cend()) < values.size());
        static const QRegularExpression unitName("^\"[^\"()]+ \\([^\"()]+\\)\"$");
        static const QRegularExpression number("^\\d+$");
        for (int slot = 0; slot < values.size(); ++slot)
            QVERIFY2((units.contains(slot) ? unitName : number).match(values.at(slot)).hasMatch(),
                     qPrintable(QString("slot %1: %2").arg(slot).arg(values.at(slot))));
    }

    // With a single tip "Next tip" would look for another one for ever.
    void everyTipIsOneLineOfText()
    {
        const QStringList tips = linesOf("TIPOFDAY_UK.TXT");
        QVERIFY(tips.size() >= 2);
        QCOMPARE(QSet<QString>(tips.cbegin(), tips.cend()).size(), tips.size());
        for (const QString &tip : tips)
            QVERIFY2(!tip.isEmpty() && tip == tip.trimmed(), qPrintable(tip));
    }

private:
    // All lines end with CR LF; the characters from 0x80 to 0x9F, in which Windows-1252 and Latin-1 differ,
    // do not occur.
    static QStringList linesOf(const QString &name)
    {
        const QString text = QString::fromLatin1(readFile(ALEMBRA_FOLDER "/" + name));
        static const QRegularExpression wrong("[\\x{80}-\\x{9f}]|\r(?!\n)|(?<!\r)\n|[^\n]\\z");
        if (text.contains(wrong))
            QTest::qFail(qPrintable(name), __FILE__, __LINE__);
        return text.chopped(2).split("\r\n");
    }
};

const TestClass<DeliveredFilesTest> deliveredFilesTest;
#include "delivered_files_test.moc"
