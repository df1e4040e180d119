#pragma once

#include "calc/calcfields.h"

/// What the calculators do by themselves when the text of a `TextBoxM7` field has changed, by typing or by
/// the program's own writing: keep the two fractions of a pair at a sum of 1, and fractions and the dilution
/// ratio within their bounds.
///
/// The changes are to be written one after the other, after the message; a field that gets a different text
/// reports its change again, and that settles by itself because a field that gets the text it has does not.
namespace ChangeWatcher {

struct Reaction
{
    QString message;
    QList<Change> changes;
};

/// @p texts already hold the changed text. RuntimeError 13 if a watched field holds a text that is no number,
/// which cannot be typed.
Reaction react(Field changed, const FieldTexts &texts);

} // namespace ChangeWatcher
