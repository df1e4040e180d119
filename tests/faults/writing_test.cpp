#include "core/optionslots.h"
#include "core/runtimeerror.h"
#include "tests/support/filetrouble.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

/// The options file is replaced in place and nothing is kept of the old one. So what a full disk or a killed
/// process leaves is the beginning of the new file, and the next start reads what there is of it.
class WritingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fullDiskIsToldAndLeavesTheBeginning();
    void killedWritersLeaveTheBeginning();

private:
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // What is left at @p path is a beginning, and its values are those that were meant, but for the last one.
    void requireBeginning(const QString &path) const
    {
        QVERIFY(m_whole.startsWith(contentOf(path)));
        OptionSlots left;
        left.read(path);
        QVERIFY(left.lastIndex() <= m_meant.lastIndex());
        for (int index = 0; index < left.lastIndex(); ++index)
            QCOMPARE(left(index), m_meant(index));
    }

    QTemporaryDir m_folder;
    OptionSlots m_meant;
    QByteArray m_whole;
};

void WritingTest::initTestCase()
{
    m_meant.read(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
    const QString path = m_folder.filePath(QStringLiteral("whole"));
    m_meant.write(path);
    m_whole = contentOf(path);
    QVERIFY(m_whole.size() > 1000);
}

void WritingTest::fullDiskIsToldAndLeavesTheBeginning()
{
    const QString path = m_folder.filePath(QStringLiteral("options_uk.ini"));
    for (qsizetype bytes = 0; bytes < m_whole.size(); bytes += 29) {
        int number = 0;
        {
            const FullDisk disk{rlim_t(bytes)};
            try {
                m_meant.write(path);
            } catch (const RuntimeError &error) {
                number = error.number();
            }
        }
        QCOMPARE(number, ErrorNumber::DiskFull);
        requireBeginning(path);
    }
    m_meant.write(path);
    QCOMPARE(contentOf(path), m_whole);
}

void WritingTest::killedWritersLeaveTheBeginning()
{
    const QString path = m_folder.filePath(QStringLiteral("options_uk.ini"));
    QRandomGenerator random(7);
    for (int round = 0; round < 200; ++round) {
        m_meant.write(path);
        const pid_t writer = fork();
        QVERIFY(writer >= 0);
        if (writer == 0) {
            for (;;)
                m_meant.write(path);
        }
        usleep(useconds_t(random.bounded(2000)));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        requireBeginning(path);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_GUILESS_MAIN(WritingTest)
#include "writing_test.moc"
