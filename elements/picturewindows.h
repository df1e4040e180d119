#pragma once

#include <QString>

class QWidget;

/// `Form5`: the enlarged picture of an element, titled with its name. A click on it closes it. RuntimeError
/// 53 or 481 where there is no picture; then nothing opens.
void openZoomWindow(QWidget &form1, const QString &caption, const QString &picturePath);

/// `Form4`: the unit cell of the crystal structure of that name. Errors as above.
void openCrystalWindow(QWidget &form1, const QString &crystalName, const QString &picturePath);
