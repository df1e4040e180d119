#pragma once

#include <QScrollArea>

/// The room of the panes in the main window. In a window smaller than a pane the pane scrolls; in a larger
/// one it stays at the top left.
class PaneScroll final : public QScrollArea
{
    Q_OBJECT

public:
    /// @p paneArea is the parent of the panes, which are there already.
    PaneScroll(QWidget &paneArea, QWidget *parent);

    /// The size of a whole pane.
    QSize sizeHint() const override;

protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
