#pragma once

#include "calc/calcfields.h"

#include <QProcess>
#include <QStringList>
#include <QTest>

/// Fields in a row of a test, "Ci=100 Vi=1", and back.
namespace FieldRows {

inline const QStringList Names{"Xn1", "Xn2", "Xm1", "Xm2", "M1", "M2", "Ci",  "Vi",  "Cf",
                               "Vf",  "T",   "Tc",  "P",   "T*", "P*", "BM3", "BM4", "BM5"};

inline FieldTexts texts(const QString &row)
{
    FieldTexts texts;
    for (const QString &entry : row.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(QLatin1Char('='));
        Q_ASSERT(parts.size() == 2 && Names.contains(parts[0]));
        texts[size_t(Names.indexOf(parts[0]))] = parts[1];
    }
    return texts;
}

inline QString row(const QList<Change> &changes)
{
    QStringList entries;
    for (const Change &change : changes)
        entries << Names[change.field] + QLatin1Char('=') + change.text;
    return entries.join(QLatin1Char(' '));
}

} // namespace FieldRows

/// Runs the test program once more in a process whose desktop has @p locale; 0 is success.
inline int runAgainIn(const char *locale)
{
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(locale));
    environment.insert(QStringLiteral("LANG"), QString::fromLatin1(locale));
    environment.insert(QStringLiteral("ALEMBRA_TEST_LOCALE"), QString::fromLatin1(locale));
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::ForwardedChannels);
    again.start(QCoreApplication::applicationFilePath(), {QStringLiteral("theLocaleOfTheDesktop")});
    return again.waitForFinished() && again.exitStatus() == QProcess::NormalExit ? again.exitCode() : -1;
}

/// True in a process that runAgainIn() started.
inline bool isRunAgain()
{
    return qEnvironmentVariableIsSet("ALEMBRA_TEST_LOCALE");
}
