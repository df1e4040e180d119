#pragma once

#include <QFrame>
#include <QScrollBar>

/// The frame that shows a part of a chart: `grdFrame19`.
///
/// While its scroll bar is shown, it forwards the wheel and the keys to the bar and is in the Tab order. The
/// outline around it marks the focus.
class ChartViewport final : public QWidget
{
    Q_OBJECT

public:
    ChartViewport(const QString &name, QScrollBar &bar, QFrame &outline, QWidget *parent);

    /// Shows or hides the bar.
    void setScrollable(bool scrollable);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QScrollBar &m_bar;
    QFrame &m_outline;
};
