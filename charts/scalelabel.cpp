#include "charts/scalelabel.h"

#include "charts/chartgeometry.h"

#include <QPainter>
#include <QStyle>

ScaleLabel::ScaleLabel(const QString &name, const QString &text, int chartLeft, QWidget *parent)
    : QLabel(text, parent), m_chartLeft(chartLeft)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
}

void ScaleLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QStringList marks = text().split(u' ', Qt::SkipEmptyParts);
    for (int mark = 0; mark < marks.size(); ++mark) {
        const int tick = m_chartLeft + ChartGeometry::IrLeft + mark * ChartGeometry::IrStep;
        const QRect place(tick - ChartGeometry::IrStep / 2, 0, ChartGeometry::IrStep, height());
        style()->drawItemText(&painter, place, Qt::AlignHCenter | Qt::AlignVCenter, palette(), isEnabled(),
                              marks[mark], foregroundRole());
    }
}
