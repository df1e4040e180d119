#pragma once

class QTabBar;

namespace TypeAhead {

/// Passes what is typed on @p strip to the visible list below it, which takes the focus: a name can be typed
/// right after a click on a tab.
void install(QTabBar &strip);

} // namespace TypeAhead
