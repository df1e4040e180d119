#pragma once

#include "browsers/effects.h"

/// What the tabs and option buttons of the solutions and biochemistry panes do.
namespace PaneEffects {

/// Option buttons 0 to 5 stand on the solutions pane, 6 to 9 on the biochemistry pane.
const EffectTable &Option4();

/// Solutions.
const EffectTable &TabStrip2();
const EffectTable &TabStrip7();
const EffectTable &TabStrip10();

/// Biochemistry.
const EffectTable &TabStrip9();
const EffectTable &Option5();
const EffectTable &TabStrip8();

} // namespace PaneEffects
