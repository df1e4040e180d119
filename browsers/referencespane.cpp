#include "browsers/referencespane.h"

#include "core/desktop.h"
#include "core/module1.h"
#include "widgets/linklabel.h"

#include <QList>

using namespace Qt::StringLiterals;

using Kind = References::Entry::Kind;

ReferencesPane::ReferencesPane(const Module1 &module1, Desktop &desktop, QWidget *parent)
    : ModulePanel("frmbiblio", parent), m_module1(module1), m_desktop(desktop)
{}

void ReferencesPane::buildContents()
{
    const QList<int> firstOfColumn{0, 2, 6}; // the headings "Solvents", "Calculations" and "Elements"
    constexpr int Margin = 16;
    constexpr int ColumnWidth = 300;
    constexpr int ColumnGap = 14;
    constexpr int LineGap = 3;
    constexpr int AboveHeading = 10;
    constexpr int BulletWidth = 9;

    int left = Margin - ColumnWidth - ColumnGap;
    int top = 0;
    for (const References::Entry &entry : References::page()) {
        if (entry.kind == Kind::Heading) {
            top += AboveHeading;
            if (firstOfColumn.contains(entry.index)) {
                left += ColumnWidth + ColumnGap;
                top = Margin;
            }
        }
        QLabel *label = makeLabel(entry);
        const int indent = entry.kind == Kind::Link ? BulletWidth : 0;
        const int width = qMin(label->sizeHint().width(), ColumnWidth - indent);
        label->setWordWrap(true);
        label->setGeometry(left + indent, top, entry.kind == Kind::Link ? width : ColumnWidth,
                           label->heightForWidth(width));
        if (entry.kind == Kind::Link) {
            QLabel *bullet = Controls::label({}, u"-"_s, this);
            Label1.add(entry.bullet, bullet).move(left, top);
        }
        top += label->height() + LineGap;
    }
}

QLabel *ReferencesPane::makeLabel(const References::Entry &entry)
{
    if (entry.kind == Kind::Link)
        return &Label1.add(entry.index, makeLink(entry));
    QLabel *text = entry.kind == Kind::Heading ? Controls::heading({}, entry.text, this)
                                               : Controls::label({}, entry.text, this);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return &Label1.add(entry.index, text);
}

LinkLabel *ReferencesPane::makeLink(const References::Entry &entry)
{
    const bool inFolder = entry.target.startsWith(u'/');
    auto *link = new LinkLabel(entry.text,
                               inFolder ? m_module1.shippedFile(entry.target.sliced(1)) : entry.target, this);
    connect(link, &LinkLabel::clicked, this, [this](const QString &target) { m_desktop.openTarget(target); });
    return link;
}
