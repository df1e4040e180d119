#include "app/frmload.h"

#include "core/desktop.h"
#include "core/module1.h"
#include "core/versionrecord.h"
#include "widgets/controls.h"
#include "widgets/modulepanel.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize{470, 244};
constexpr int TextLeft = 128;
constexpr int TextWidth = WindowSize.width() - TextLeft - 16;
constexpr int PauseMilliseconds = 50;

} // namespace

int progressPercent(int value, int maximum)
{
    const auto top = float(maximum);
    return int(std::nearbyint((1.0F - (top - float(value)) / top) * 100.0F));
}

frmload::frmload() : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(u"frmload"_s);
    setWindowTitle(u"0% Alembra"_s);
    setFixedSize(WindowSize);
    setFont(ModulePanel::fittingFont(font())); // fixed in size like the panes

    auto *picture = Controls::label(u"Image1"_s, {}, this);
    picture->setPixmap(QApplication::windowIcon().pixmap(QSize(88, 88), devicePixelRatio()));
    picture->setGeometry(20, 24, 88, 88);

    QLabel *title = addLine("lblTitle", VersionRecord::ApplicationTitle, 22, 26);
    title->setFont(Controls::largeType(title->font()));
    addLine("lblVersion", u"Version %1"_s.arg(Module1::version()), 50, 20);
    addLine("lblDescription", VersionRecord::Comments, 72, 68);
    addLine("lblcopy", VersionRecord::LegalNotice, 142, 48);

    auto *doing = Controls::label(u"Label1"_s, u"Loading data..."_s, this);
    doing->setGeometry(TextLeft, 192, TextWidth, 18);
    m_progressBar = Controls::named(new QProgressBar(this), u"ProgressBar1"_s);
    m_progressBar->setTextVisible(false);
    m_progressBar->setGeometry(TextLeft, 214, TextWidth, 14);
    m_progressBar->setRange(0, 100);
    m_progressBar->setValue(0);
}

QLabel *frmload::addLine(const char *name, const QString &text, int top, int height)
{
    QLabel *line = Controls::label(name, text, this);
    line->setWordWrap(true);
    line->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    line->setGeometry(TextLeft, top, TextWidth, height);
    return line;
}

void frmload::showAndPause(Desktop &desktop)
{
    show();
    desktop.pause(PauseMilliseconds);
}

void frmload::setMaximum(int maximum)
{
    m_progressBar->setMaximum(maximum);
}

void frmload::ProgressTick()
{
    m_progressBar->setValue(m_progressBar->value() + 5); // paints at once, without an event loop
    setWindowTitle(u"%1% Alembra"_s.arg(progressPercent(m_progressBar->value(), m_progressBar->maximum())));
}
