#pragma once

#include "core/scale.h"

#include <QJsonObject>

class Desktop;

/// One run of the program: opens and closes database, options and windows in their order.
///
/// @p appFolder is the folder of the user's files, @p shippedFolder that of the executable if it is another;
/// both with "/" as separator, without one at the end. @p scale is the scale of the windows. A @p session is
/// restored, without a tip.
///
/// Returns the status of the process. RuntimeError for errors without an answer here.
int Main(Desktop &desktop, const QString &appFolder, const QString &shippedFolder = {},
         const Scale &scale = {}, const QJsonObject &session = {});
