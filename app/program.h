#pragma once

#include <QString>

class Desktop;

/// One run of the program: the order in which database, options and windows come up and go.
///
/// Returns the status of the process. Errors that meet no trap leave as RuntimeError, for the caller to
/// report.
///
/// @p appFolder is the folder of the user's files, @p shippedFolder that of the executable where it is
/// another; both with "/" as separator, without one at the end.
int Main(Desktop &desktop, const QString &appFolder, const QString &shippedFolder = {});
