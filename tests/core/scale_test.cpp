#include "core/scale.h"
#include "tests/support/testclass.h"

#include <QSettings>
#include <QTemporaryDir>

class ScaleTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowIsScaledInStepsOfFiveAsFarAsItFits()
    {
        const QSize window(1000, 700);
        for (const auto &[room, percent] : {std::pair(QSize(2000, 599), 85),
                                            {QSize(854, 2000), 85},
                                            {QSize(100, 100), Scale::Least},
                                            {QSize(9000, 9000), Scale::Most}})
            QCOMPARE(Scale::fitting(window, room), percent);
    }

    void theUserChoosesOrFollowsTheDesktop()
    {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        QCOMPARE(Scale::remembered(), Scale::Normal);
        QCOMPARE(Scale::chosenOr(125), 125);
        QCOMPARE(Scale::remembered(), 125);
        const Scale scale{125, 125};
        scale.choose(175);
        QCOMPARE(Scale::chosenOr(150), 175);
        QCOMPARE(Scale::remembered(), 175);
        scale.choose(125);
        QCOMPARE(Scale::remembered(), 150);
    }
};

const TestClass<ScaleTest> scaleTest;
#include "scale_test.moc"
