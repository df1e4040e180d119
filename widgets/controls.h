#pragma once

#include <QSize>
#include <QString>
#include <QWidget>

class QLabel;

/// Small helpers that every pane uses on its controls.
namespace Controls {

/// A control's own setting, whether or not the pane around it is on show. "Visible" never means anything else
/// here.
inline bool isShown(const QWidget &control)
{
    return !control.isHidden();
}

/// Whether the user can see @p control, a descendant of @p pane, once the pane is shown: it is not hidden,
/// and no other control covers its middle.
bool isOnTop(const QWidget &control, const QWidget &pane);

/// Gives @p control its name in the system and returns it.
template<class W>
W *named(W *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}

/// About what window managers put around a window, in logical pixels.
inline constexpr QSize WindowFrame{8, 36};

/// The largest size that @p window can have on its screen, in logical pixels.
QSize roomFor(const QWidget &window);

/// @p font as the one large type: bold, 15 pixels high. The title of the splash and the cells of the periodic
/// table share it. It is as large as two letters go in a cell: the table is read from the other end of the
/// bench.
QFont largeType(QFont font);

/// "ListView3" and 29 make "ListView3(29)".
QString indexedName(const char *array, int index);

/// A plain-text label of that name.
QLabel *label(const QString &name, const QString &text, QWidget *parent);

/// The same in bold, as heading of a block.
QLabel *heading(const QString &name, const QString &text, QWidget *parent);

} // namespace Controls
