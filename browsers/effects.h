#pragma once

#include <QPair>
#include <QStringList>
#include <map>

/// What an event does to the controls of a pane, each by its name in the system: "ListView3(4)".
///
/// Shown and hidden is a control's own setting. A list that an effect does not name stays as it is, even if
/// another one now covers it: which of two covered lists is on show is how a pane remembers a choice.
struct Effect
{
    QString ifOn = {};  ///< holds only if this option button is on; empty: always
    QString ifOff = {}; ///< holds only if this option button is off
    QStringList shown = {};
    QStringList hidden = {};
    QList<QPair<QString, int>> tops = {}; ///< new upper edges, twips from that of the pane
    QList<QPair<QString, QString>> captions = {};
};

/// In the order in which they happen.
using Effects = QList<Effect>;

/// A handler: what it does, by the number of the tab (from 1) or the index of the option button. Other
/// numbers do nothing.
using EffectTable = std::map<int, Effects>;
