#pragma once

#include "app/form1.h"
#include "app/program.h"
#include "tests/support/programfolder.h"
#include "tests/support/scripteddesktop.h"

#include <QApplication>
#include <QTimer>

/// What tests of whole runs of the program share, from `Main` to its end.
class WholeRun : public QObject
{
protected:
    using Steps = std::function<void(Form1 &)>;

    /// Runs the program, @p steps in its event loop, and quits it. Fails the test where the main window does
    /// not come up. The steps may end in the run-time error report. The status of the process.
    int run(const ProgramFolder &folder, const Steps &steps, const QJsonObject &session = {})
    {
        return run(folder.root(), {}, m_desktop, steps, session);
    }

    /// As delivered and without an error.
    void run(const Steps &steps) { QCOMPARE(run(ProgramFolder(), steps), 0); }

    int run(const QString &appFolder, const QString &shippedFolder, Desktop &desktop, const Steps &steps,
            const QJsonObject &session = {})
    {
        const int status = start(appFolder, shippedFolder, desktop, steps, session);
        if (!m_cameUp)
            QTest::qFail("the main window did not come up", __FILE__, __LINE__);
        return status;
    }

    /// How a run goes that may fail: "runs" without a box, "report <number>" where the run-time error report
    /// ended it, "question" where the offer to reinstall the database did, otherwise the boxes themselves.
    QString outcome(
        const ProgramFolder &folder, const Steps &steps = [](Form1 &) {})
    {
        start(folder.root(), {}, m_desktop, steps, {});
        QStringList boxes;
        for (const auto &[text, style] : m_desktop.boxes)
            boxes << text;
        if (boxes.isEmpty())
            return m_cameUp ? QStringLiteral("runs") : QStringLiteral("ended in silence");
        const QString &first = boxes.constFirst();
        if (boxes.size() == 1 && first.startsWith(QStringLiteral("Run-time error '")))
            return QStringLiteral("report ") + first.section(QLatin1Char('\''), 1, 1);
        if (boxes.size() == 1 && first.startsWith(QStringLiteral("Impossible to connect to the database!")))
            return QStringLiteral("question");
        return boxes.join(QStringLiteral(" | "));
    }

    /// The window of that name, null where none is open.
    static QWidget *openWindow(const char *name)
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && window->isVisible())
                return window;
        }
        return nullptr;
    }

    ScriptedDesktop m_desktop; ///< the boxes are those of the last run
    bool m_cameUp = false;     ///< the main window, in the last run

private:
    int start(const QString &appFolder, const QString &shippedFolder, Desktop &desktop, const Steps &steps,
              const QJsonObject &session)
    {
        m_cameUp = false;
        m_desktop.boxes.clear();
        int status = 0;
        const auto endingHere = [&status](const std::function<void()> &action) {
            try {
                action();
            } catch (const ProcessEnded &end) {
                status = end.status;
            }
        };
        QTimer complete; // not in an event loop of the start
        connect(&complete, &QTimer::timeout, this, [&] {
            auto *form = qobject_cast<Form1 *>(openWindow("Form1"));
            if (!form)
                return;
            complete.stop();
            m_cameUp = true;
            endingHere([&] { steps(*form); }); // nothing thrown may cross the event loop
            form->executeCommand(1005);
        });
        complete.start(0);
        endingHere([&] {
            endOnError(desktop, [&] {
                const int left = Main(desktop, appFolder, shippedFolder, {}, session);
                status = status == 0 ? left : status;
            });
        });
        return status;
    }
};
