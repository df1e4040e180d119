#include "widgets/focusmark.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>

class FocusMark::Ring final : public QWidget
{
public:
    Ring() { setAttribute(Qt::WA_TransparentForMouseEvents); }

    void surround(QWidget *control)
    {
        if (parentWidget()) {
            parentWidget()->removeEventFilter(this);
            parentWidget()->disconnect(this);
        }
        setParent(control);
        control->installEventFilter(this);
        if (const auto *tabs = qobject_cast<QTabBar *>(control))
            connect(tabs, &QTabBar::currentChanged, this, [this] { fit(); });
        fit();
        show();
        raise();
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), palette().highlight()); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            fit();
        return QWidget::eventFilter(watched, event);
    }

private:
    // Of tabs side by side, around the selected one. Of tabs in a column that one has the ring's colour
    // anyway.
    void fit()
    {
        constexpr int Width = 2;
        const auto *tabs = qobject_cast<QTabBar *>(parentWidget());
        const bool aside = tabs && tabs->shape() == QTabBar::RoundedNorth;
        setGeometry(aside ? tabs->tabRect(tabs->currentIndex()) : parentWidget()->rect());
        setMask(QRegion(rect()) - rect().adjusted(Width, Width, -Width, -Width));
    }
};

FocusMark::FocusMark()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { moveTo(now); });
}

FocusMark::~FocusMark()
{
    delete m_ring;
}

void FocusMark::moveTo(QWidget *control)
{
    const bool wanted = control && (control->focusPolicy() & Qt::TabFocus) &&
                        !qobject_cast<QPushButton *>(control) && control->window()->windowType() != Qt::Popup;
    if (wanted && !m_ring)
        m_ring = new Ring;
    if (wanted)
        m_ring->surround(control);
    else if (m_ring)
        m_ring->hide();
}
