#pragma once

#include "core/runtimeerror.h"
#include "tests/support/testclass.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#ifdef QT_GUI_LIB
#include <QImage>
#endif

class QWidget;

// What most tests do with files, errors, controls and locales.

/// Fails the test, and goes on, where @p path cannot be read.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    QTest::qFail(qPrintable(QStringLiteral("cannot read ") + path), __FILE__, __LINE__);
    return {};
}

/// Makes the folder of @p path too.
inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

#ifdef QT_GUI_LIB
/// A picture of one colour; the format follows the suffix, or is BMP where Qt cannot write that one.
inline void makePicture(const QString &path, const QSize &size, const QColor &colour = Qt::red)
{
    QDir().mkpath(QFileInfo(path).path());
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    if (!picture.save(path) && !picture.save(path, "BMP"))
        qFatal("cannot write %s", qUtf8Printable(path));
}
#endif

/// The number of the RuntimeError that @p action throws, 0 without one.
inline int errorOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

/// The control of that object name in @p window; without it the test program ends.
template<class W = QWidget>
W &get(const QObject &window, const QString &name)
{
    auto *found = window.findChild<W *>(name);
    if (!found)
        qFatal("no such control in %s: %s", qPrintable(window.objectName()), qPrintable(name));
    return *found;
}

/// Runs @p arguments, functions of the test class or none for all, once more in a process whose desktop has
/// @p locale, since a process reads its locale once. In that process it does nothing.
inline void runAgainIn(const QByteArray &locale, QStringList arguments)
{
    if (qEnvironmentVariableIsSet("ALEMBRA_TEST_LOCALE"))
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LC_ALL", "LANG", "ALEMBRA_TEST_LOCALE"})
        environment.insert(QString::fromLatin1(name), QString::fromLatin1(locale));
    if (!TestClasses::all.isEmpty())
        arguments.prepend(QString::fromLatin1(QTest::testObject()->metaObject()->className()));
    QProcess again;
    again.setProcessEnvironment(environment);
    again.start(QCoreApplication::applicationFilePath(), arguments);
    again.waitForFinished(-1); // the test's own time is limited
    const bool succeeded = again.exitStatus() == QProcess::NormalExit && again.exitCode() == 0;
    QVERIFY2(succeeded, locale + ": " + again.readAllStandardOutput() + again.readAllStandardError());
}

/// Runs @p check in a process whose desktop has @p locale: the whole test function runs again there.
inline void inLocale(const QByteArray &locale, const std::function<void()> &check)
{
    if (qgetenv("ALEMBRA_TEST_LOCALE") == locale)
        check();
    else
        runAgainIn(locale, {QString::fromLatin1(QTest::currentTestFunction())});
}
