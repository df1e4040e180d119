#pragma once

#include "app/form1.h"
#include "app/program.h"
#include "tests/support/programfolder.h"
#include "tests/support/scripteddesktop.h"

#include <QApplication>
#include <QTimer>
#include <functional>

/// One whole run of the program on a spoilt folder, as `main` makes it, and how it went.
class FaultRun final
{
public:
    ScriptedDesktop desktop;

    /// Starts the program, runs @p walk once it stands, and quits it. A walk may end in the run-time error
    /// report.
    void start(const ProgramFolder &folder, const std::function<void(Form1 &)> &walk = {})
    {
        QTimer whenItStands;
        QObject::connect(&whenItStands, &QTimer::timeout, &whenItStands, [&] {
            whenItStands.stop();
            Form1 *form = mainWindow();
            try {
                stood = true;
                if (walk)
                    walk(*form);
            } catch (const ProcessEnded &) {
                // Thrown back here, since it must not cross the event loop; the boxes tell what it was.
            }
            form->executeCommand(1005);
        });
        whenItStands.start(0);
        try {
            endOnError(desktop, [&] { Main(desktop, folder.root()); });
        } catch (const ProcessEnded &) {
            whenItStands.stop();
        }
    }

    /// "runs" without a box, "report <number>" where the run-time error report ended it, "question" where the
    /// reinstall question did, otherwise the boxes themselves.
    QString outcome() const
    {
        if (desktop.boxes.isEmpty())
            return stood ? QStringLiteral("runs") : QStringLiteral("ended in silence");
        const QString first = desktop.boxes.constFirst().first;
        if (desktop.boxes.size() == 1 && first.startsWith(QStringLiteral("Run-time error '")))
            return QStringLiteral("report ") + first.section(QLatin1Char('\''), 1, 1);
        if (first.startsWith(QStringLiteral("Impossible to connect to the database!")) &&
            desktop.boxes.size() == 1)
            return QStringLiteral("question");
        QStringList texts;
        for (const auto &[text, style] : desktop.boxes)
            texts << text;
        return texts.join(QStringLiteral(" | "));
    }

    bool boxNames(const QString &path) const
    {
        return !desktop.boxes.isEmpty() && desktop.boxes.constLast().first.contains(path);
    }

    bool stood = false; ///< the main window came up

    static Form1 *mainWindow()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *form = qobject_cast<Form1 *>(window))
                return form;
        }
        return nullptr;
    }
};

/// What can be wrong with a file, and how it is brought about.
namespace Fault {

// Folders of pictures are links to the assembled ones: makes each folder on the way to @p below a folder of
// links, and the file itself a copy.
inline void makeOwn(const ProgramFolder &folder, const QString &below)
{
    QString path = folder.root();
    for (const QString &part : below.split(QLatin1Char('/'))) {
        path += QLatin1Char('/') + part;
        if (!QFileInfo(path).isSymLink())
            continue;
        const QFileInfo assembled(QFile::symLinkTarget(path));
        QFile::remove(path);
        if (!assembled.isDir()) {
            QFile::copy(assembled.filePath(), path);
            continue;
        }
        QDir().mkpath(path);
        for (const QFileInfo &each :
             QDir(assembled.filePath()).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
            QFile::link(each.filePath(), path + QLatin1Char('/') + each.fileName());
    }
}

inline void bring(const ProgramFolder &folder, const QString &below, const QByteArray &fault)
{
    makeOwn(folder, below);
    const QString path = folder.path(below);
    const QByteArray whole = folder.read(below);
    if (whole.isEmpty() || !QFile::remove(path))
        qFatal("no such file to spoil: %s", qUtf8Printable(path));
    if (fault == "empty")
        folder.write(below, {});
    else if (fault == "cut")
        folder.write(below, whole.first(whole.size() / 2 + 1)); // not at the end of a page of a database
    else if (fault == "of another kind")
        folder.write(below, QByteArray("This is no such file.\r\n").repeated(20));
    else if (fault == "a folder")
        QDir().mkpath(path);
    else if (fault == "unreadable") // opens, and then every read fails, like a worn medium
        QFile::link(QStringLiteral("/proc/self/mem"), path);
    else if (fault != "missing")
        qFatal("no such fault: %s", fault.constData());
}

} // namespace Fault
