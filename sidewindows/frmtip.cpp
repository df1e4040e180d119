#include "sidewindows/frmtip.h"

#include "core/desktop.h"
#include "core/module1.h"
#include "sidewindows/tips.h"
#include "widgets/controls.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize TipSize{430, 132};
constexpr const char *TipFile = "TIPOFDAY_UK.TXT";

} // namespace

frmTip::frmTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1)
    : SideWindow("frmTip", form1), m_module1(module1), m_desktop(desktop), m_setCheck1(std::move(setCheck1))
{
    setWindowTitle(u"Tip of the day"_s);
    buildWindow();
    connect(chkLoadTipsAtStartup, &QCheckBox::toggled, this, &frmTip::storeChoice);
    chkLoadTipsAtStartup->setChecked(true);
    if (!LoadTips(module1.shippedFile(TipFile))) {
        lblTipText->setText(u"That the %1 file was not found? \n\n"
                            "Create a text file named %1 using NotePad with 1 tip per line. "
                            "Then place it in the same directory as the application. "_s.arg(TipFile));
    }
}

void frmTip::buildWindow()
{
    auto *picture = Controls::label(u"Image1"_s, {}, this);
    picture->setPixmap(Icons::named(u"tip"_s).pixmap(QSize(32, 32), devicePixelRatio()));
    QLabel *question = Controls::heading(u"Label1"_s, u"Do you know that..."_s, this);
    auto *head = new QHBoxLayout;
    head->setSpacing(10);
    head->addWidget(picture);
    head->addWidget(question, 1);

    // The text if the tip file is empty.
    lblTipText = Controls::label(u"lblTipText"_s, u"There is no tip."_s, this);
    lblTipText->setWordWrap(true);
    lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText->setMinimumSize(TipSize);
    lblTipText->setMargin(12);
    lblTipText->setFrameShape(QFrame::StyledPanel);
    lblTipText->setAutoFillBackground(true);
    lblTipText->setBackgroundRole(QPalette::Base);
    lblTipText->setForegroundRole(QPalette::Text);
    lblTipText->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addLayout(head);
    column->addWidget(lblTipText, 1);
    column->addLayout(buildButtons());
}

QLayout *frmTip::buildButtons()
{
    chkLoadTipsAtStartup =
        Controls::named(new QCheckBox(u"&Display tips when starting"_s, this), u"chkLoadTipsAtStartup"_s);
    auto *cmdNextTip = Controls::named(new QPushButton(u"&Next tip"_s, this), u"cmdNextTip"_s);
    QPushButton *cmdOK = makeOkButton(u"cmdOK"_s);
    cmdNextTip->setAutoDefault(false);
    cmdOK->setFocus();
    connect(cmdNextTip, &QPushButton::clicked, this, &frmTip::nextTip);
    auto *row = new QHBoxLayout;
    row->addWidget(chkLoadTipsAtStartup);
    row->addStretch();
    row->addWidget(cmdNextTip);
    row->addWidget(cmdOK);
    return row;
}

bool frmTip::LoadTips(const QString &path)
{
    std::optional<QStringList> tips = Tips::read(path);
    if (!tips)
        return false;
    m_tips = std::move(*tips);
    nextTip();
    return true;
}

void frmTip::nextTip()
{
    m_current = Tips::next(m_current, int(m_tips.size()),
                           [] { return QRandomGenerator::global()->generateDouble(); });
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip()
{
    if (!m_tips.isEmpty())
        lblTipText->setText(m_tips[m_current - 1]);
}

void frmTip::storeChoice(bool wanted)
{
    m_module1.OptionSlots(Slot::TipAtStart) = wanted ? 1 : 0;
    m_setCheck1(wanted);
}

void frmTip::accept()
{
    endOnError(m_desktop, [this] {
        m_module1.WriteOptions();
        close();
    });
}

void openTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1)
{
    if (Tips::isWanted())
        (new frmTip(module1, desktop, std::move(setCheck1), form1))->showAboveOwner();
}
