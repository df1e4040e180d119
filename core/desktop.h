#pragma once

#include "core/runtimeerror.h"

#include <QString>
#include <QStringList>

/// The seam to everything outside the program that a user or the system answers: message boxes, the save
/// dialog, opening a link, the beep, pauses and the end of the process. Tests answer in its place.
class Desktop
{
    Q_DISABLE_COPY_MOVE(Desktop)

public:
    /// Style numbers of message boxes; they add up. Without YesNo the box has one button, OK.
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

    /// A modal box titled "Alembra" with plain @p text. The style is a sum of Style numbers: the two bits
    /// above 15 that make up the icon are read as a number, so 68 is the information icon with Yes and No.
    virtual Answer messageBox(const QString &text, int style) = 0;

    /// The chosen path, whole. A cancelled dialog is RuntimeError 32755. Existing files are not asked about.
    virtual QString saveFile(const SaveRequest &request) = 0;

    /// Hands a web address or the path of a file to the program that the desktop has for it. Failure is
    /// silent.
    virtual void openTarget(const QString &target) = 0;

    /// What the desktop says of a program for the kind of file that @p path is.
    enum class Viewer { None, Known, Unknown };
    virtual Viewer viewerOf(const QString &path) = 0;

    virtual void beep() = 0;

    /// Lets the event loop run for @p milliseconds without burning the processor.
    virtual void pause(int milliseconds) = 0;

    /// Ends the process at once, without any clean-up. It never returns; a test's stand-in throws.
    [[noreturn]] virtual void endProcess(int status) = 0;

    /// A critical box, the same on standard error, and the end with status 1.
    [[noreturn]] void endWithMessage(const QString &text);

    /// Ends with the run-time error report.
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
