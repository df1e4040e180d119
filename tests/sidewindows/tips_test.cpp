#include "sidewindows/tips.h"
#include "tests/support/files.h"

#include <QTemporaryDir>

class TipsTest final : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_folder;

private Q_SLOTS:
    void everyLineIsATip()
    {
        const QStringList two{"one", "two"};
        const std::pair<QByteArray, QStringList> rows[] = {
            {"one\r\ntwo\r\n", two},
            {"one\ntwo\n", two},
            {"one\rtwo\r", two},
            {"one\r\ntwo", two},
            {"one\r\n\r\ntwo\r\n", {"one", "", "two"}},
            {"\r\n", {""}},
            {"", {}},
            {"80 \xb0"
             "C \x96 \xb5L\r\n",
             {"80 °C – µL"}}, // Windows-1252
        };
        const QString path = m_folder.filePath("tips");
        for (const auto &[content, tips] : rows) {
            writeFile(path, content);
            QCOMPARE(*Tips::read(path), tips);
        }
        for (const QString &none : {QString(), m_folder.filePath("none"), m_folder.path()})
            QVERIFY(!Tips::read(none));
    }

    void drawsAgainUntilTheTipIsAnotherOne()
    {
        QList<double> fractions{0.0, 0.1, 0.3, 0.999};
        const auto take = [&] { return fractions.takeFirst(); };
        for (const auto &[current, next] : {std::pair(0, 1), std::pair(1, 2), std::pair(2, 5)})
            QCOMPARE(Tips::next(current, 5, take), next);
        QVERIFY(fractions.isEmpty());
        for (int i = 0; i < 40; ++i)
            QCOMPARE(Tips::next(0, 40, [i] { return i / 40.0; }), i + 1);
        for (const int count : {0, 1}) { // the only tip stays
            for (const int current : {0, 1})
                QCOMPARE(Tips::next(current, count, [] { return 0.7; }), 1);
        }
    }
};

const TestClass<TipsTest> tipsTest;
#include "tips_test.moc"
