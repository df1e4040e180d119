#include "app/focuskeeper.h"

#include "app/paneswitch.h"
#include "widgets/controls.h"
#include "widgets/modulepanel.h"

#include <QApplication>
#include <QEvent>
#include <utility>

FocusKeeper::FocusKeeper(QWidget &form, const PaneSwitch &panes) : m_form(form), m_panes(panes)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && m_pane && m_pane->isAncestorOf(now))
            m_last[m_pane] = now;
    });
}

bool FocusKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_isWaiting && isChange(*watched, *event)) {
        m_isWaiting = true;
        QMetaObject::invokeMethod(this, &FocusKeeper::keep, Qt::QueuedConnection);
    }
    return false;
}

bool FocusKeeper::isChange(const QObject &watched, const QEvent &event) const
{
    if (event.type() == QEvent::EnabledChange)
        return &watched == &m_form;
    const auto *widget = qobject_cast<const QWidget *>(&watched);
    return (event.type() == QEvent::Show || event.type() == QEvent::Hide) && widget &&
           m_form.isAncestorOf(widget);
}

void FocusKeeper::keep()
{
    m_isWaiting = false;
    ModulePanel *pane = m_panes.shownPanel();
    if (!pane || !m_form.isVisible() || !m_form.isEnabled())
        return;
    const QWidget *focused = m_form.focusWidget();
    const bool paneChanged = std::exchange(m_pane, pane) != pane;
    if (paneChanged || !focused || !isInSight(*focused))
        entry(paneChanged).setFocus(Qt::OtherFocusReason);
}

bool FocusKeeper::isInSight(const QWidget &control) const
{
    const bool covered = m_pane->isAncestorOf(&control) && !Controls::isOnTop(control, *m_pane);
    return control.isVisible() && control.isEnabled() && !covered;
}

// A pane without controls takes the focus itself.
QWidget &FocusKeeper::entry(bool paneChanged) const
{
    QWidget *first = m_pane->firstFocus();
    QWidget *last = m_last.value(m_pane);
    for (QWidget *wanted : {paneChanged ? first : last, paneChanged ? last : first}) {
        if (wanted && isInSight(*wanted))
            return *wanted;
    }
    for (QWidget *next = m_pane->nextInFocusChain(); next != m_pane; next = next->nextInFocusChain()) {
        if (m_pane->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) && isInSight(*next))
            return *next;
    }
    return *m_pane;
}
