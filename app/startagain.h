#pragma once

#include <QJsonObject>

/// A run that ends for another one to go on in its place, at another scale.
///
/// What it leaves is in the environment of the process that takes its place.
namespace StartAgain {

struct Left
{
    int percent = 0;     ///< the scale of the next run; 0: nothing was left
    QJsonObject session; ///< what the next run comes back to, see Session; empty: it starts anew
};

void leave(const Left &left);

/// Whether the next run is waited for.
bool isWanted();

/// What the run before has left, once.
Left take();

} // namespace StartAgain
