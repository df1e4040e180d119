#include "app/panescroll.h"

#include "widgets/modulepanel.h"

#include <QEvent>
#include <QScrollBar>

PaneScroll::PaneScroll(QWidget &paneArea, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the panes' controls take it
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setWidget(&paneArea);
    for (ModulePanel *pane : paneArea.findChildren<ModulePanel *>(Qt::FindDirectChildrenOnly))
        pane->installEventFilter(this);
}

QSize PaneScroll::sizeHint() const
{
    return ModulePanel::Size;
}

// Only Tab may scroll to the focus. Qt also passes it on when a control is hidden.
bool PaneScroll::focusNextPrevChild(bool next)
{
    const bool byTab = focusWidget() && focusWidget()->isVisible();
    return byTab ? QScrollArea::focusNextPrevChild(next) : QWidget::focusNextPrevChild(next);
}

// A new pane shows its top left.
bool PaneScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent) {
        horizontalScrollBar()->setValue(0);
        verticalScrollBar()->setValue(0);
    }
    return QScrollArea::eventFilter(watched, event);
}
