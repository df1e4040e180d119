#include "app/scaleactions.h"

#include "app/commands.h"
#include "app/form1.h"
#include "app/ownactions.h"
#include "app/session.h"
#include "app/startagain.h"
#include "sidewindows/frmscale.h"

#include <QAction>
#include <QScreen>

ScaleActions::ScaleActions(const OwnActions &actions, const Scale &scale, LaterTables &tables, Form1 &form)
    : m_scale(scale), m_tables(tables), m_form(form)
{
    addAction(actions.action(OwnAction::ZoomIn), &ScaleActions::larger);
    addAction(actions.action(OwnAction::ZoomOut), &ScaleActions::smaller);
    addAction(actions.action(OwnAction::ZoomReset), &ScaleActions::byDesktop);
    addAction(actions.action(OwnAction::FitWindow), &ScaleActions::fitting);
}

void ScaleActions::addAction(QAction &action, int (ScaleActions::*proposed)() const)
{
    m_actions << &action;
    connect(&action, &QAction::triggered, this, [this, proposed] { propose((this->*proposed)()); });
}

// The whole main window on its screen.
int ScaleActions::fitting() const
{
    const QSize atNormal = m_form.screen()->availableSize() * m_scale.percent / Scale::Normal;
    return Scale::fitting(m_form.sizeHint() + Controls::WindowFrame, atNormal);
}

int ScaleActions::percent() const
{
    return m_window ? m_window->percent() : m_scale.percent;
}

// The shortcuts work in the window too: each press is one more step.
void ScaleActions::propose(int percent)
{
    if (!m_window) {
        m_window = new frmScale(m_scale, m_form);
        m_window->addActions(m_actions);
        connect(m_window, &frmScale::chosen, this, [this](int choice, bool now) {
            m_scale.choose(choice);
            if (now) // once the window is closed
                QMetaObject::invokeMethod(
                    this, [this, choice] { startAgain(choice); }, Qt::QueuedConnection);
        });
        m_window->showAboveOwner();
    }
    m_window->setPercent(percent);
}

void ScaleActions::startAgain(int percent)
{
    StartAgain::leave({percent, Session::of(m_form, m_tables)});
    m_form.executeCommand(CommandId::Quit);
}
