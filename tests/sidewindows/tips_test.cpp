#include "sidewindows/tips.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"
#include "tests/support/testclass.h"

#include <QSettings>
#include <QTemporaryDir>

class TipsTest final : public QObject
{
    Q_OBJECT

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
        QFile::setPermissions(path, {});
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)); // others may look
        const OrdinaryUser user;
        QVERIFY(errorOf([&] { Tips::read(path); }) != 0);
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

    void theSettingOfTheUserCanTurnTipsOff()
    {
        const std::pair<QByteArray, bool> rows[] = {{"", true}, {"1", true}, {"0", false}, {"never", false}};
        for (const auto &[setting, wanted] : rows) {
            const QByteArray line =
                setting.isEmpty() ? setting : "[Options]\nShow%20Tips%20at%20Startup=" + setting + '\n';
            const QTemporaryDir home; // a file that is written again at once is not read again
            QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
            writeFile(home.filePath("Alembra/Alembra_uk.ini"), line);
            bool isWanted = false;
            QCOMPARE(errorOf([&] { isWanted = Tips::isWanted(); }),
                     setting == "never" ? ErrorNumber::TypeMismatch : 0);
            QCOMPARE(isWanted, wanted);
        }
    }

private:
    QTemporaryDir m_folder;
};

const TestClass<TipsTest> tipsTest;
#include "tips_test.moc"
