#pragma once

#include "core/runtimeerror.h"

#include <QString>
#include <QStringList>

/// The seam to everything that the user or the system answers: message boxes, the save dialog, opening a
/// link, the beep, pauses and the end of the process. Tests replace it.
class Desktop
{
    Q_DISABLE_COPY_MOVE(Desktop)

public:
    /// Style numbers of message boxes, to be added. Without YesNo the box has one button, OK.
    enum Style { Critical = 16, Question = 32, Warning = 48, Information = 64, YesNo = 4 };
    enum Answer { Ok = 1, Yes = 6, No = 7 };

    struct SaveRequest
    {
        QString fileName;        ///< offered name, without folder
        QString folder;          ///< where the dialog opens
        QString filterName;      ///< "Page Web"
        QStringList filterGlobs; ///< {"*.htm", "*.html"}
    };

    Desktop() = default;
    virtual ~Desktop() = default;

    /// A modal box titled "Alembra" with plain @p text. @p style is a sum of Style numbers, in which 32 + 32
    /// is the information icon.
    virtual Answer messageBox(const QString &text, int style) = 0;

    /// The full chosen path. RuntimeError 32755 if the user cancels. Does not ask about existing files.
    virtual QString saveFile(const SaveRequest &request) = 0;

    /// Opens a web address or a file in the desktop's default application. Failure is silent.
    virtual void openTarget(const QString &target) = 0;

    /// Whether the desktop has an application for the file type of @p path.
    enum class Viewer { None, Known, Unknown };
    virtual Viewer viewerOf(const QString &path) = 0;

    virtual void beep() = 0;

    /// Runs the event loop for @p milliseconds, without busy waiting.
    virtual void pause(int milliseconds) = 0;

    /// Ends the process at once, without clean-up. Never returns; the tests' version throws.
    [[noreturn]] virtual void endProcess(int status) = 0;

    /// Shows @p text in a critical box and on standard error, then ends the process with status 1.
    [[noreturn]] void endWithMessage(const QString &text);

    /// The same with the run-time error report.
    [[noreturn]] void endWithReport(const RuntimeError &error) { endWithMessage(error.report()); }
};

/// Runs an event handler. A RuntimeError that leaves it ends the program with its report.
template<class Handler>
void endOnError(Desktop &desktop, Handler handler)
{
    try {
        handler();
    } catch (const RuntimeError &error) {
        desktop.endWithReport(error);
    }
}
