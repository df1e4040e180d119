#pragma once

#include <QColor>
#include <QList>
#include <QRegion>
#include <QString>

class QWidget;

/// A text as a widget paints it, whoever draws it: a label, a style, a delegate or the widget itself. Places
/// are logical pixels of the window that was asked.
struct PaintedText
{
    QString text;
    QRect ink;    ///< what its letters cover
    QRegion seen; ///< of the ink, what is not clipped; what covers the widget does not count
    QColor colour;
    QWidget *by = nullptr; ///< the widget that paints it
};

namespace PaintedTexts {

/// All texts of @p window and its children, in the order of painting.
QList<PaintedText> of(QWidget &window);

} // namespace PaintedTexts
