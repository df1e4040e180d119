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
    // Runs the program and @p walk in its event loop, then quits it. The status of the process.
    int run(const ProgramFolder &folder, const std::function<void(Form1 &)> &walk,
            const QJsonObject &session = {})
    {
        return run(folder.root(), {}, m_desktop, walk, session);
    }

    int run(const QString &appFolder, const QString &shippedFolder, Desktop &desktop,
            const std::function<void(Form1 &)> &walk, const QJsonObject &session = {})
    {
        QTimer complete; // not in an event loop of the start
        connect(&complete, &QTimer::timeout, this, [&] {
            Form1 *form = mainWindow();
            if (!form || !form->isVisible())
                return;
            complete.stop();
            walk(*form);
            form->executeCommand(1005);
        });
        complete.start(0);
        try {
            return Main(desktop, appFolder, shippedFolder, {}, session);
        } catch (const ProcessEnded &end) {
            return end.status;
        }
    }

    static Form1 *mainWindow()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *form = qobject_cast<Form1 *>(window))
                return form;
        }
        return nullptr;
    }

    ScriptedDesktop m_desktop;
};
