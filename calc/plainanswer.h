#pragma once

#include "calc/calcfields.h"

/// The line under the fields of a tab: their values in amounts that can be measured at the bench. Empty if
/// values are missing.
namespace PlainAnswer {

/// "20.8 mmol in 250 mL: 83.3 mmol/L"
QString concentration(const FieldTexts &texts);

/// "20.8 mL, made up to 250 mL; 1 in 12", and a warning where Ci x Vi and Cf x Vf do not agree.
QString dilution(const FieldTexts &texts);

/// "By amount 25 % and 75 %, by mass 46.1 % and 53.9 %"
QString fractions(const FieldTexts &texts);

} // namespace PlainAnswer
