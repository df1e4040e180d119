#include "tests/support/pictures.h"
#include "tests/support/programfolder.h"

/// Whether the panes and windows look as on the pictures in docs/screenshots and in the help, which people
/// look at: take those anew (take_screenshots) after each change that can be seen, and look what has changed.
class ScreenshotsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWindowLooksAsInTheDocumentation()
    {
        const ProgramFolder program;
        program.setOption(56, "1"); // with the tip of the start, as it is delivered
        QTemporaryDir folder;
        QProcess screenshots;
        screenshots.start(QStringLiteral(SCREENSHOTS),
                          {program.root(), folder.path(), QStringLiteral("light")});
        QVERIFY(screenshots.waitForFinished(-1)); // the test's own time is limited
        QCOMPARE(screenshots.exitCode(), 0);
        QStringList others;
        for (const char *pictures : {"/docs/screenshots", "/data/help"}) {
            const QDir kept(ALEMBRA_SOURCE + QString(pictures));
            for (const QString &name : kept.entryList({QStringLiteral("*.png")})) {
                const int levels = difference(QImage(folder.filePath(name)), QImage(kept.filePath(name)));
                if (levels > Tolerance)
                    others << QStringLiteral("%1 by %2 levels").arg(name).arg(levels);
            }
        }
        folder.setAutoRemove(others.isEmpty());
        QVERIFY2(others.isEmpty(), qPrintable(folder.path() + QStringLiteral(" differs in ") +
                                              others.join(QStringLiteral(", "))));
    }
};

QTEST_MAIN(ScreenshotsTest)
#include "screenshots_test.moc"
