#include "sidewindows/frmabout.h"

#include "core/buildsettings.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "core/versionrecord.h"
#include "widgets/controls.h"
#include "widgets/icons.h"
#include "widgets/linklabel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextWidth = 330;

} // namespace

frmAbout::frmAbout(Desktop &desktop, QWidget &form1) : SideWindow("frmAbout", form1), m_desktop(desktop)
{
    setWindowTitle(u"About "_s + VersionRecord::ApplicationTitle);
    auto *picture = Controls::label(u"Image1"_s, {}, this);
    picture->setPixmap(Icons::program().pixmap(QSize(88, 88), devicePixelRatio()));
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(14);
    grid->addWidget(picture, 0, 0, Qt::AlignTop);
    grid->addLayout(buildTexts(), 0, 1);
    grid->addLayout(buildButtons(), 1, 0, 1, 2);
}

QLayout *frmAbout::buildTexts()
{
    QLabel *lblTitle = Controls::heading(u"lblTitle"_s, VersionRecord::ApplicationTitle, this);
    QFont large = lblTitle->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    lblTitle->setFont(large);
    auto *Line1 = Controls::named(new QFrame(this), u"Line1"_s);
    Line1->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    const auto addText = [&](const char *name, const QString &text) {
        QLabel *label = Controls::label(name, text, this);
        label->setWordWrap(true);
        label->setFixedSize(TextWidth, label->heightForWidth(TextWidth));
        column->addWidget(label);
    };
    column->addWidget(lblTitle);
    addText("lblVersion", u"Version %1"_s.arg(Module1::version()));
    addText("lblDisclaimer", VersionRecord::FileDescription);
    column->addWidget(Line1);
    addText("lblcopy", VersionRecord::LegalNotice);
    addText("Label5", u"Published in "_s + VersionRecord::NoticeYears);
    column->addLayout(buildAddresses());
    return column;
}

QLayout *frmAbout::buildAddresses()
{
    using BuildSettings::WebSite;
    auto *Label1 = Controls::named(new LinkLabel(WebSite, WebSite, this), u"Label1"_s);
    QLabel *Label2 = Controls::label(u"Label2"_s, VersionRecord::contactAddress(), this);
    Label2->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(Label1, &LinkLabel::clicked, this,
            [this](const QString &target) { m_desktop.openTarget(target); });

    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->addWidget(Controls::label(u"Label3"_s, u"Website: "_s, this), 0, 0);
    grid->addWidget(Label1, 0, 1, Qt::AlignLeft);
    grid->addWidget(Controls::label(u"Label4"_s, u"E-mail:"_s, this), 1, 0);
    grid->addWidget(Label2, 1, 1);
    return grid;
}

QLayout *frmAbout::buildButtons()
{
    auto *cmdSysInfo = Controls::named(new QPushButton(u"&System infos..."_s, this), u"cmdSysInfo"_s);
    QPushButton *cmdOk = makeOkButton(u"cmdOk"_s);
    cmdSysInfo->setMinimumWidth(104);
    cmdSysInfo->setAutoDefault(false);
    cmdOk->setFocus();
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
    auto *row = new QHBoxLayout;
    row->addWidget(cmdSysInfo);
    row->addStretch();
    row->addWidget(cmdOk);
    return row;
}

void frmAbout::StartSysInfo()
{
    // This desktop has no program for system information.
    m_desktop.messageBox(u"Les informations système ne sont pas disponibles actuellement"_s, 0);
}

void openAbout(Desktop &desktop, QWidget &form1)
{
    auto *about = form1.findChild<frmAbout *>();
    if (!about || about->isHidden()) // a hidden one is about to be destroyed
        about = new frmAbout(desktop, form1);
    about->showAboveOwner();
}
