#pragma once

#include <QJsonObject>

class Form1;
class LaterTables;

/// What the user sees: the current pane, and the tabs, options, rows and typed numbers of each.
///
/// Controls are found by object name, without the panes' help.
namespace Session {

QJsonObject of(const Form1 &form, const LaterTables &tables);

/// Restores all of it, as if by the user's clicks and keys.
void restore(const QJsonObject &session, Form1 &form, LaterTables &tables);

} // namespace Session
