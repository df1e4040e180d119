#pragma once

#include <QWidget>

class QLabel;

/// Helpers for the controls of all panes.
namespace Controls {

/// The control's own setting, whatever its ancestors are. "Shown" and "visible" mean this throughout.
inline bool isShown(const QWidget &control)
{
    return !control.isHidden();
}

/// Whether the user sees @p control, a descendant of @p pane, when the pane is shown: it is not hidden, and
/// no other control covers its middle.
bool isOnTop(const QWidget &control, const QWidget &pane);

/// Space and Enter press what can be pressed.
inline bool isPressKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Sets the object name of @p control and returns it.
template<class W>
W *named(W *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}

/// Approximate size of what window managers add to a window, logical pixels.
inline constexpr QSize WindowFrame{8, 36};

/// The largest size of @p window on its screen, logical pixels.
QSize roomFor(const QWidget &window);

/// @p font bold and 15 pixels high, for the splash and the cells of the periodic table. Two letters just fit
/// in a cell: the table is read from the other end of the bench.
QFont largeType(QFont font);

/// "ListView3(29)" for "ListView3" and 29.
QString indexedName(const char *array, int index);

/// A plain-text label.
QLabel *label(const QString &name, const QString &text, QWidget *parent);

/// The same in bold.
QLabel *heading(const QString &name, const QString &text, QWidget *parent);

} // namespace Controls
