#pragma once

#include "browsers/effects.h"

/// What the six tabs of the solvents pane show.
namespace SolventTabs {

/// Which list of the NMR tab is on show.
enum Nucleus { Proton = 1, Carbon = 2 };

struct Tab
{
    QString caption;
    bool searchable; ///< on the others the Find bar closes
};

/// In their order; the system counts them from 1.
const QList<Tab> &all();

/// The list and the frames of tab @p number are shown, those of all other tabs are hidden. The two buttons
/// for the nucleus are never hidden: off their tab they are parked beneath the list.
Effects change(int number, Nucleus NmrNucleus);

/// A click on the button of @p nucleus.
Effects choose(Nucleus nucleus);

} // namespace SolventTabs
