#include "widgets/fieldhint.h"

#include <QAccessible>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

using namespace Qt::StringLiterals;

FieldHint::FieldHint(QWidget &field) : QLabel(&field, Qt::ToolTip), m_field(field)
{
    setObjectName(field.objectName() + u"Hint"_s);
    setTextFormat(Qt::PlainText);
    setPalette(QToolTip::palette());
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setFrameStyle(Box | Plain);
    setMargin(3);
    constexpr int Seconds = 6;
    m_time.setInterval(Seconds * 1000);
    m_time.setSingleShot(true);
    connect(&m_time, &QTimer::timeout, this, &QWidget::hide);
}

void FieldHint::showText(const QString &text)
{
    constexpr int Gap = 3;
    setText(text);
    adjustSize();
    const QPoint below = m_field.mapToGlobal(QPoint(0, m_field.height() + Gap));
    const int rightmost = m_field.screen()->availableGeometry().right() - width();
    move(std::min(below.x(), rightmost), below.y());
    show();
    m_time.start();
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}
