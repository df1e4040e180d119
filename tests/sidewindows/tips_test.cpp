#include "core/runtimeerror.h"
#include "sidewindows/tips.h"
#include "tests/support/filetrouble.h"

#include <QFile>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class TipsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLineIsATip_data();
    void everyLineIsATip();
    void withoutAFileThereAreNoTips();
    void unreadableFileIsAnError();
    void theDeliveredFileHasTipsToChooseFrom();
    void drawsAgainUntilTheTipIsAnotherOne();
    void drawsEveryTip();
    void staysWithTheOnlyTip();
    void theSettingOfTheUserCanTurnTipsOff_data();
    void theSettingOfTheUserCanTurnTipsOff();

private:
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void TipsTest::everyLineIsATip_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("tips");
    const auto row = [](const char *name, const QByteArray &content, const QStringList &tips) {
        QTest::newRow(name) << content << tips;
    };
    const QStringList two{QStringLiteral("one"), QStringLiteral("two")};
    row("ended by CR LF", "one\r\ntwo\r\n", two);
    row("ended by LF", "one\ntwo\n", two);
    row("ended by CR", "one\rtwo\r", two);
    row("last line not ended", "one\r\ntwo", two);
    row("empty line", "one\r\n\r\ntwo\r\n", {two[0], QString(), two[1]});
    row("one empty line", "\r\n", {QString()});
    row("no line", "", {});
    row("Windows-1252",
        "80 \xb0"
        "C \x96 \xb5L\r\n",
        {QString::fromUtf8("80 °C – µL")});
}

void TipsTest::everyLineIsATip()
{
    QFETCH(QByteArray, content);
    const std::optional<QStringList> tips = Tips::read(write(QStringLiteral("tips"), content));
    QVERIFY(tips);
    QTEST(*tips, "tips");
}

void TipsTest::withoutAFileThereAreNoTips()
{
    QVERIFY(!Tips::read({}));
    QVERIFY(!Tips::read(m_folder.filePath(QStringLiteral("none"))));
    QVERIFY(!Tips::read(m_folder.path()));
}

void TipsTest::unreadableFileIsAnError()
{
    const QString path = write(QStringLiteral("locked"), "one\n");
    QFile::setPermissions(path, {});
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)); // others may look
    const OrdinaryUser user;
    QVERIFY_THROWS_EXCEPTION(RuntimeError, Tips::read(path));
}

void TipsTest::theDeliveredFileHasTipsToChooseFrom()
{
    const std::optional<QStringList> tips = Tips::read(QStringLiteral(ALEMBRA_FOLDER "/TIPOFDAY_UK.TXT"));
    QVERIFY(tips && tips->size() >= 2);
    QCOMPARE(QSet<QString>(tips->begin(), tips->end()).size(), tips->size());
    QVERIFY(!tips->contains(QString()));
}

void TipsTest::drawsAgainUntilTheTipIsAnotherOne()
{
    QList<double> fractions{0.0, 0.3, 0.999};
    const auto take = [&] { return fractions.takeFirst(); };
    QCOMPARE(Tips::next(0, 5, take), 1);
    fractions.prepend(0.1);
    QCOMPARE(Tips::next(1, 5, take), 2);
    QCOMPARE(Tips::next(2, 5, take), 5);
    QVERIFY(fractions.isEmpty());
}

void TipsTest::drawsEveryTip()
{
    QSet<int> seen;
    for (int i = 0; i < 40; ++i)
        seen << Tips::next(0, 40, [i] { return i / 40.0; });
    QCOMPARE(seen.size(), 40);
    QVERIFY(seen.contains(1) && seen.contains(40));
}

void TipsTest::staysWithTheOnlyTip()
{
    const auto any = [] { return 0.7; };
    QCOMPARE(Tips::next(0, 1, any), 1);
    QCOMPARE(Tips::next(1, 1, any), 1);
    QCOMPARE(Tips::next(0, 0, any), 1);
    QCOMPARE(Tips::next(1, 0, any), 1);
}

void TipsTest::theSettingOfTheUserCanTurnTipsOff_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("wanted");
    QTest::newRow("nothing stored") << QByteArray() << 0 << true;
    QTest::newRow("on") << QByteArray("[Options]\nShow%20Tips%20at%20Startup=1\n") << 0 << true;
    QTest::newRow("off") << QByteArray("[Options]\nShow%20Tips%20at%20Startup=0\n") << 0 << false;
    QTest::newRow("no number") << QByteArray("[Options]\nShow%20Tips%20at%20Startup=never\n")
                               << ErrorNumber::TypeMismatch << false;
}

void TipsTest::theSettingOfTheUserCanTurnTipsOff()
{
    QFETCH(QByteArray, settings);
    QFETCH(int, error);
    const QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkdir(QStringLiteral("Alembra")));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QFile file(home.filePath(QStringLiteral("Alembra/Alembra_uk.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(settings) == settings.size());
    file.close();
    try {
        QTEST(Tips::isWanted(), "wanted");
        QCOMPARE(error, 0);
    } catch (const RuntimeError &thrown) {
        QCOMPARE(thrown.number(), error);
    }
}

QTEST_GUILESS_MAIN(TipsTest)
#include "tips_test.moc"
