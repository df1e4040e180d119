#pragma once

class QTabBar;

/// Lets a name be typed right after a click on a tab.
namespace TypeAhead {

/// Hands what is typed on @p strip to the list on screen right below it, which takes the focus.
void install(QTabBar &strip);

} // namespace TypeAhead
