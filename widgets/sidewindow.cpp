#include "widgets/sidewindow.h"

#include "widgets/controls.h"
#include "widgets/modaldialogs.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

SideWindow::SideWindow(const char *name, QWidget &owner) : QDialog(&owner), m_owner(owner)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_WindowPropagation); // palette and font of the main window
}

void SideWindow::showAboveOwner()
{
    QWidget *focused = focusWidget();
    m_owner.setEnabled(false);
    setEnabled(true); // disabled with its owner, which also takes the focus
    if (focused)
        focused->setFocus();
    show();
    raise();
    activateWindow();
}

void SideWindow::setVisible(bool visible)
{
    if (visible && !isVisible())
        fitToScreen();
    QDialog::setVisible(visible);
}

// The contents keep their size and scroll if the window is too small.
void SideWindow::fitToScreen()
{
    const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    const QSize room = Controls::roomFor(*this);
    if (wanted.boundedTo(room) == wanted)
        return;
    QWidget *focused = focusWidget();
    auto *contents = new QWidget;
    const QList<QWidget *> children = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    if (layout())
        contents->setLayout(layout()); // takes the children along
    else
        for (QWidget *child : children)
            child->setParent(contents);
    contents->setFixedSize(wanted);

    auto *scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(contents);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(scroll);
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const int bar = scroll->verticalScrollBar()->sizeHint().width();
    resize((wanted + QSize(bar, bar)).boundedTo(room));
    if (focused)
        focused->setFocus();
}

void SideWindow::closeEvent(QCloseEvent *event)
{
    if (isVisible() && ModalDialogs::rejectBeforeClosing(*this)) { // of a hidden one no handler waits
        event->ignore();
        return;
    }
    m_owner.setEnabled(true);
    m_owner.activateWindow();
    event->accept();
    Q_EMIT unloaded();
}

QPushButton *SideWindow::makeOkButton(const QString &name)
{
    auto *button = Controls::named(new QPushButton(u"&OK"_s, this), name);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    return button;
}
