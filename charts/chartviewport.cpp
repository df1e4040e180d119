#include "charts/chartviewport.h"

#include "widgets/controls.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWheelEvent>

ChartViewport::ChartViewport(const QString &name, QScrollBar &bar, QFrame &outline, QWidget *parent)
    : QWidget(parent), m_bar(bar), m_outline(outline)
{
    setObjectName(name);
}

void ChartViewport::setScrollable(bool scrollable)
{
    m_bar.setVisible(scrollable);
    setFocusPolicy(scrollable ? Qt::StrongFocus : Qt::NoFocus);
}

void ChartViewport::wheelEvent(QWheelEvent *event)
{
    if (Controls::isShown(m_bar))
        QCoreApplication::sendEvent(&m_bar, event);
}

void ChartViewport::keyPressEvent(QKeyEvent *event)
{
    if (Controls::isShown(m_bar))
        QCoreApplication::sendEvent(&m_bar, event);
    else
        QWidget::keyPressEvent(event);
}

void ChartViewport::focusInEvent(QFocusEvent *event)
{
    m_outline.setForegroundRole(QPalette::Highlight);
    QWidget::focusInEvent(event);
}

void ChartViewport::focusOutEvent(QFocusEvent *event)
{
    m_outline.setForegroundRole(QPalette::Mid);
    QWidget::focusOutEvent(event);
}
