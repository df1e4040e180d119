#include "core/filecopy.h"
#include "core/optionslots.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"

/// The options file is replaced in place and nothing is kept of the old one. So what a full disk or a killed
/// process leaves is the beginning of the new file, and the next start reads what there is of it.
class WritingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_meant.read(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
        m_meant.write(m_path);
        m_whole = readFile(m_path);
        QVERIFY(m_whole.size() > 1000);
        copyFileOver(m_path, m_path); // other than options, a copy is whole before it replaces anything
        QCOMPARE(readFile(m_path), m_whole);
    }

    // The killed writer ends by its first byte beyond the limit.
    void aFullDiskAndAKilledWriterLeaveTheBeginning()
    {
        for (qsizetype bytes = 0; bytes < m_whole.size(); bytes += 29) {
            const int number = errorOf([&] {
                const FullDisk disk{rlim_t(bytes)};
                m_meant.write(m_path);
            });
            QCOMPARE(number, ErrorNumber::DiskFull);
            requireBeginning(bytes);

            m_meant.write(m_path);
            QCOMPARE(readFile(m_path), m_whole);
            const pid_t writer = fork();
            QVERIFY(writer >= 0);
            if (writer == 0) {
                const FullDisk disk{rlim_t(bytes)};
                signal(SIGXFSZ, SIG_DFL);
                m_meant.write(m_path);
                _exit(0);
            }
            int status = 0;
            QCOMPARE(waitpid(writer, &status, 0), writer);
            QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ);
            requireBeginning(bytes);
        }
    }

private:
    // The file has so many bytes of what was meant, and its values are those, but for the last one.
    void requireBeginning(qsizetype bytes) const
    {
        QCOMPARE(readFile(m_path), m_whole.first(bytes));
        OptionSlots left;
        left.read(m_path);
        QVERIFY(left.lastIndex() <= m_meant.lastIndex());
        for (int index = 0; index < left.lastIndex(); ++index)
            QCOMPARE(left(index), m_meant(index));
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("options_uk.ini");
    OptionSlots m_meant;
    QByteArray m_whole;
};

QTEST_GUILESS_MAIN(WritingTest)
#include "writing_test.moc"
