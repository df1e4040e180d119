#pragma once

#include <QJsonObject>

class Form1;
class LaterTables;

/// What the user has in front of them: the pane, and of each pane its tabs, options, rows and typed numbers.
///
/// Controls are known by their object names, so that no pane has to know of it.
namespace Session {

QJsonObject of(const Form1 &form, const LaterTables &tables);

/// Puts all of it back, as if by the user's own clicks and keys.
void restore(const QJsonObject &session, Form1 &form, LaterTables &tables);

} // namespace Session
