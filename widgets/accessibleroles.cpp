#include "widgets/accessibleroles.h"

#include "widgets/linklabel.h"
#include "widgets/picturebox.h"

#include <QAccessibleWidget>

namespace {

template<class Control>
class Pressable final : public QAccessibleWidget
{
public:
    Pressable(Control *control, QAccessible::Role role)
        : QAccessibleWidget(control, role), m_control(*control)
    {}

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            m_control.press();
        else
            QAccessibleWidget::doAction(action);
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        const auto *label = qobject_cast<const QLabel *>(widget());
        return kind == QAccessible::Name && own.isEmpty() && label ? label->text() : own;
    }

private:
    Control &m_control;
};

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    if (auto *link = qobject_cast<LinkLabel *>(object))
        return new Pressable(link, QAccessible::Link);
    auto *picture = qobject_cast<PictureBox *>(object);
    if (picture && picture->focusPolicy() != Qt::NoFocus) // others only show
        return new Pressable(picture, QAccessible::Button);
    return nullptr;
}

} // namespace

void AccessibleRoles::install()
{
    QAccessible::installFactory(&interfaceOf);
}
