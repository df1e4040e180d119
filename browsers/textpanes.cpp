#include "browsers/textpanes.h"

#include "browsers/references.h"
#include "core/desktop.h"
#include "widgets/controls.h"
#include "widgets/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 32;
constexpr int TextWidth = 620; // longer lines are hard to follow

/// Heading and paragraphs at the top left of @p pane. The layout takes more below them.
QVBoxLayout *layOutText(QWidget *pane, const QString &heading, const QStringList &paragraphs)
{
    auto *column = new QVBoxLayout(pane);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(14);
    QLabel *title = Controls::heading({}, heading, pane);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    title->setFont(large);
    column->addWidget(title);
    for (const QString &paragraph : paragraphs) {
        QLabel *text = Controls::label({}, paragraph, pane);
        text->setWordWrap(true);
        text->setFixedWidth(TextWidth);
        column->addWidget(text);
    }
    return column;
}

} // namespace

DonatePane::DonatePane(Desktop &desktop, QWidget *parent) : ModulePanel("frmdon", parent), m_desktop(desktop)
{}

void DonatePane::buildContents()
{
    QVBoxLayout *column = layOutText(
        this, u"Donate"_s,
        {u"Alembra is free software. If it saves you a walk to the library now and then, a donation helps "
         "to keep its tables growing and its web site open."_s,
         u"Click either picture to open the donation page in your browser. The program itself sends nothing."_s});
    auto *pictures = new QHBoxLayout;
    pictures->setSpacing(24);
    pictures->addWidget(makePicture(u"Image1"_s, Icons::named(u"donate"_s)));
    pictures->addWidget(makePicture(u"Image2"_s, Icons::program()));
    pictures->addStretch();
    column->addLayout(pictures);
    column->addStretch();
}

QWidget *DonatePane::makePicture(const QString &name, const QIcon &icon)
{
    constexpr QSize PictureSize{96, 96};
    auto *picture = Controls::named(new QToolButton(this), name);
    picture->setIcon(icon);
    picture->setIconSize(PictureSize);
    picture->setFixedSize(PictureSize + QSize(24, 24));
    picture->setAutoRaise(true);
    picture->setCursor(Qt::PointingHandCursor);
    picture->setFocusPolicy(Qt::StrongFocus);
    picture->setAccessibleName(u"Open the donation page"_s);
    picture->setToolTip(References::donationPage());
    connect(picture, &QToolButton::clicked, this,
            [this] { m_desktop.openTarget(References::donationPage()); });
    return picture;
}

PolymersPane::PolymersPane(QWidget *parent) : ModulePanel("frmpolym", parent)
{}

void PolymersPane::buildContents()
{
    layOutText(this, u"Polymers"_s, {u"This version has no data on polymers."_s})->addStretch();
}
