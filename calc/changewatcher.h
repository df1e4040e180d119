#pragma once

#include "calc/calcfields.h"

/// The reaction of the calculators to a changed text in a `TextBoxM7` field, typed or written by the program:
/// keep the two fractions of a pair at a sum of 1, and fractions and the dilution ratio within their bounds.
///
/// The caller shows the message, then writes the changes one by one. A field that gets a different text
/// reports its change again; writing the same text must not, so this ends.
namespace ChangeWatcher {

struct Reaction
{
    QString message;
    QList<Change> changes;
};

/// @p texts include the changed text. RuntimeError 13 if the text of a watched field is not a number, which
/// cannot be typed.
Reaction react(Field changed, const FieldTexts &texts);

} // namespace ChangeWatcher
