#pragma once

#include <QString>

/// Amounts as they are measured out at the bench: rounded to what pipettes, cylinders and balances can do, in
/// the unit that gives a handy number. Decimal separator of the user's locale.
namespace Glassware {

/// @p millilitres as "20.8 mL", "850 µL" or "1.25 L".
QString volume(double millilitres);

/// @p grams as "24.63 g", "12.5 mg" or "1.205 kg".
QString mass(double grams);

/// Four significant digits in the unit of volume() or mass(), for the exact figure beside the rounded one.
QString exactVolume(double millilitres);
QString exactMass(double grams);

} // namespace Glassware
