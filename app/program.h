#pragma once

#include "core/scale.h"

#include <QJsonObject>

class Desktop;

/// One run of the program: the order in which database, options and windows come up and go.
///
/// @p scale is what the windows are drawn at. With a @p session the run comes back to it, without a tip.
///
/// Returns the status of the process. Errors that meet no trap leave as RuntimeError, for the caller to
/// report.
///
/// @p appFolder is the folder of the user's files, @p shippedFolder that of the executable where it is
/// another; both with "/" as separator, without one at the end.
int Main(Desktop &desktop, const QString &appFolder, const QString &shippedFolder = {},
         const Scale &scale = {}, const QJsonObject &session = {});
