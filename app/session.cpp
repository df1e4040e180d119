#include "app/session.h"

#include "app/commands.h"
#include "app/form1.h"
#include "elements/elementspane.h"
#include "store/latertables.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView Maximised("maximised");
constexpr QLatin1StringView TablesRead("tables read");
constexpr QLatin1StringView Pane("pane");
constexpr QLatin1StringView Element("element");

/// A class of controls and the property to save.
struct Kind
{
    const char *control;
    const char *property; ///< null: the current row
};

// In the order of restoring: tabs decide which controls there are, options empty fields.
constexpr std::array Kinds{
    Kind{"QTabBar", "currentIndex"},    Kind{"QAbstractButton", "checked"}, Kind{"QComboBox", "currentIndex"},
    Kind{"QAbstractItemView", nullptr}, Kind{"QLineEdit", "text"},
};

QList<QWidget *> controlsOf(const QWidget &pane, const Kind &kind)
{
    QList<QWidget *> controls = pane.findChildren<QWidget *>();
    controls.removeIf([&](const QWidget *control) {
        const QString name = control->objectName();
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const auto *field = qobject_cast<const QLineEdit *>(control);
        return !control->inherits(kind.control) || name.isEmpty() || name.startsWith(u"qt_"_s) ||
               (button && !button->isCheckable()) || (field && field->isReadOnly());
    });
    return controls;
}

QVariant valueOf(const QWidget &control, const Kind &kind)
{
    if (kind.property)
        return control.property(kind.property);
    return qobject_cast<const QAbstractItemView *>(&control)->currentIndex().row();
}

// Handlers react to clicks and typed texts.
void setValue(QWidget &control, const Kind &kind, const QVariant &value)
{
    if (auto *button = qobject_cast<QAbstractButton *>(&control)) {
        if (value.toBool()) // else another option of the group is on
            button->click();
    } else if (auto *list = qobject_cast<RowListView *>(&control)) {
        list->selectRow(value.toInt());
        Q_EMIT list->rowClicked(value.toInt());
    } else if (auto *units = qobject_cast<QListWidget *>(&control)) {
        units->setCurrentRow(value.toInt());
    } else {
        control.setProperty(kind.property, value);
        if (auto *field = qobject_cast<QLineEdit *>(&control))
            Q_EMIT field->textEdited(field->text());
    }
}

QJsonObject stateOf(const QWidget &pane)
{
    QJsonObject state;
    for (const Kind &kind : Kinds) {
        for (const QWidget *control : controlsOf(pane, kind))
            state[control->objectName()] = QJsonValue::fromVariant(valueOf(*control, kind));
    }
    return state;
}

void restoreState(const QWidget &pane, const QJsonObject &state)
{
    for (const Kind &kind : Kinds) {
        for (QWidget *control : controlsOf(pane, kind)) {
            const QVariant kept = state[control->objectName()].toVariant();
            if (kept.isValid() && kept != valueOf(*control, kind))
                setValue(*control, kind, kept);
        }
    }
}

void show(Form1 &form, const QString &pane)
{
    for (const Command &command : Commands) {
        const bool shows =
            command.kind == CommandKind::ShowPanel || command.kind == CommandKind::ShowPanelOnce;
        if (shows && pane == Panels[size_t(command.panel)].frame)
            form.executeCommand(command.id);
    }
}

} // namespace

QJsonObject Session::of(const Form1 &form, const LaterTables &tables)
{
    QJsonObject session{{Maximised, form.isMaximized()}, {TablesRead, tables.areRead()}};
    for (const ModulePanel *pane : form.findChildren<ModulePanel *>()) {
        if (!pane->isBuilt())
            continue;
        session[pane->objectName()] = stateOf(*pane);
        if (Controls::isShown(*pane))
            session[Pane] = pane->objectName();
    }
    session[Element] = form.findChild<ElementsPane *>()->panel().shownElement;
    return session;
}

void Session::restore(const QJsonObject &session, Form1 &form, LaterTables &tables)
{
    if (session[Maximised].toBool())
        form.setWindowState(Qt::WindowMaximized);
    if (session[TablesRead].toBool())
        tables.read();
    if (const int element = session[Element].toInt(-1); element >= 0)
        form.findChild<ElementsPane *>()->select(element);
    // The current pane last: a switch empties the charts.
    const QString shown = session[Pane].toString();
    QList<ModulePanel *> panes = form.findChildren<ModulePanel *>();
    std::stable_partition(panes.begin(), panes.end(),
                          [&](const ModulePanel *pane) { return pane->objectName() != shown; });
    for (ModulePanel *pane : panes) {
        if (!session.contains(pane->objectName()))
            continue;
        if (pane->objectName() == shown)
            show(form, shown);
        pane->build();
        restoreState(*pane, session[pane->objectName()].toObject());
    }
}
