#pragma once

#include "core/desktop.h"

#include <QList>
#include <QPair>
#include <functional>

/// What a test throws in place of the end of the process.
struct ProcessEnded
{
    int status;
};

/// A desktop that answers from a script and remembers what it was asked.
///
/// A message box that the script does not expect gets "No" (with Yes and No) or "OK", so that nothing waits.
class ScriptedDesktop final : public Desktop
{
public:
    QList<Answer> answers;            ///< for the coming message boxes, taken from the front
    QList<QPair<QString, int>> boxes; ///< text and style of those shown
    QStringList savePaths;            ///< for the coming save dialogs; none left: cancelled
    QList<SaveRequest> saveRequests;
    QStringList targets;
    Viewer viewer = Viewer::Known;
    int beeps = 0;
    int paused = 0;                     ///< milliseconds
    std::function<void()> whileWaiting; ///< runs in each box and pause, where the real one runs an event loop

    Answer messageBox(const QString &text, int style) override
    {
        boxes.append({text, style});
        wait();
        if (!answers.isEmpty())
            return answers.takeFirst();
        return (style & 7) == YesNo ? No : Ok;
    }
    QString saveFile(const SaveRequest &request) override
    {
        saveRequests.append(request);
        if (savePaths.isEmpty())
            throw RuntimeError(ErrorNumber::DialogCancelled);
        return savePaths.takeFirst();
    }
    void openTarget(const QString &target) override { targets.append(target); }
    Viewer viewerOf(const QString &) override { return viewer; }
    void beep() override { ++beeps; }
    void pause(int milliseconds) override
    {
        paused += milliseconds;
        wait();
    }
    [[noreturn]] void endProcess(int status) override { throw ProcessEnded{status}; }

private:
    void wait() const
    {
        if (whileWaiting)
            whileWaiting();
    }
};
