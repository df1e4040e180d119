#pragma once

#include <QIcon>

/// The drawn icons of the program.
namespace Icons {

/// The line icon "find" and its kind, in the colour that texts have on buttons, so that it reads on a light
/// and on a dark desktop alike. An unknown name gives an empty icon.
QIcon named(const QString &name);

/// The program's own icon, in its colours.
QIcon program();

} // namespace Icons
