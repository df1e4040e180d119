#pragma once

#include <QIcon>

/// The drawn icons of the program.
namespace Icons {

/// The line icon @p name, "find", in the text colour of buttons, readable on light and dark desktops. Empty
/// for an unknown name.
QIcon named(const QString &name);

/// The program's icon.
QIcon program();

} // namespace Icons
