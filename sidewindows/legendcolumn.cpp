#include "sidewindows/legendcolumn.h"

#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

LegendColumn::LegendColumn(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QStringList LegendColumn::entries() const
{
    static const QRegularExpression Gap(u" {2,}"_s);
    return text().split(Gap, Qt::SkipEmptyParts);
}

QSize LegendColumn::sizeHint() const
{
    int width = 0;
    const QStringList lines = entries();
    for (const QString &line : lines)
        width = std::max(width, fontMetrics().horizontalAdvance(line));
    return {width + 2, int(lines.size()) * LineHeight};
}

void LegendColumn::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    int top = 0;
    for (const QString &line : entries()) {
        painter.drawText(QRect(0, top, width(), LineHeight), int(Qt::AlignLeft | Qt::AlignVCenter), line);
        top += LineHeight;
    }
}
