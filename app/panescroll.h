#pragma once

#include <QScrollArea>

/// The area of the panes in the main window. Panes scroll in a window that is too small and stay at the top
/// left of a larger one.
class PaneScroll final : public QScrollArea
{
    Q_OBJECT

public:
    /// @p paneArea is the parent of the panes, which exist.
    PaneScroll(QWidget &paneArea, QWidget *parent);

    QSize sizeHint() const override;

protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
