#pragma once

#include <QJsonObject>

/// Restarts the program at another scale. The environment passes state to the next run.
namespace StartAgain {

struct Left
{
    int percent = 0;     ///< scale of the next run; 0: this was no restart
    QJsonObject session; ///< see Session; empty: none
};

void leave(const Left &left);

/// Whether leave() was called.
bool isWanted();

/// What the last run left, once.
Left take();

} // namespace StartAgain
