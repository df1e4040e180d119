#pragma once

class Desktop;

/// One run of the program: the order in which database, options and windows come up and go.
///
/// Returns the status of the process. Errors that meet no trap leave as RuntimeError, for the caller to
/// report.
int Main(Desktop &desktop);
