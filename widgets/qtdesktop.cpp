#include "widgets/qtdesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case Desktop::Critical:
        return QMessageBox::Critical;
    case Desktop::Question:
        return QMessageBox::Question;
    case Desktop::Warning:
        return QMessageBox::Warning;
    case Desktop::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// The window that a box opens above. Just after another box has closed no window is active yet: then the one
// that takes input.
QWidget *owner()
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool takesInput = window->isVisible() && window->isEnabled();
        if (takesInput && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog))
            return window;
    }
    return nullptr;
}

// Web pages, file transfers and local files. Anything else gives an empty URL, which opens nothing.
QUrl urlOf(const QString &target)
{
    if (QDir::isAbsolutePath(target))
        return QUrl::fromLocalFile(target);
    const QUrl url(target, QUrl::StrictMode);
    const QString scheme = url.scheme();
    const bool known = scheme == u"http"_s || scheme == u"https"_s || scheme == u"ftp"_s;
    return known && !url.host().isEmpty() ? url : QUrl();
}

} // namespace

Desktop::Answer QtDesktop::messageBox(const QString &text, int style)
{
    QMessageBox box(owner());
    box.setWindowTitle(u"Alembra"_s);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIcon(iconOf(style));
    const bool yesNo = (style & 0x7) == YesNo;
    box.setStandardButtons(yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (yesNo)
        box.setEscapeButton(QMessageBox::No);
    const int answer = box.exec();
    if (!yesNo)
        return Ok;
    return answer == QMessageBox::Yes ? Yes : No;
}

QString QtDesktop::saveFile(const SaveRequest &request)
{
    QFileDialog dialog(owner());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDirectory(request.folder);
    dialog.setNameFilter(u"%1 (%2)"_s.arg(request.filterName, request.filterGlobs.join(u' ')));
    dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        throw RuntimeError(ErrorNumber::DialogCancelled);
    return dialog.selectedFiles().constFirst();
}

void QtDesktop::openTarget(const QString &target)
{
    const QUrl url = urlOf(target);
    if (url.isValid())
        QDesktopServices::openUrl(url);
}

// xdg-mime answers for xdg-open of the same folder. Another opener may know more viewers.
Desktop::Viewer QtDesktop::viewerOf(const QString &path)
{
    const QFileInfo opener(QStandardPaths::findExecutable(u"xdg-open"_s));
    const QString companion = opener.dir().filePath(u"xdg-mime"_s);
    if (!opener.exists() || !QFileInfo(companion).isExecutable())
        return Viewer::Unknown;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    for (const QString &name : QStringList(type.name()) + type.aliases()) {
        constexpr int AnswerMilliseconds = 3000;
        QProcess query;
        query.start(companion, {u"query"_s, u"default"_s, name});
        if (!query.waitForFinished(AnswerMilliseconds))
            return Viewer::Unknown;
        if (!query.readAllStandardOutput().trimmed().isEmpty())
            return Viewer::Known;
    }
    return Viewer::None;
}

void QtDesktop::beep()
{
    QApplication::beep();
}

void QtDesktop::pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void QtDesktop::endProcess(int status)
{
    std::_Exit(status);
}
