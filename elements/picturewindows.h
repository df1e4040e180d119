#pragma once

#include <QString>

class QWidget;

/// `Form5`: the enlarged picture of an element, titled with its name. A click closes it. RuntimeError 53 or
/// 481 without a picture; then nothing opens.
void openZoomWindow(QWidget &form1, const QString &caption, const QString &picturePath);

/// `Form4`: the unit cell of the crystal structure. Errors as above.
void openCrystalWindow(QWidget &form1, const QString &crystalName, const QString &picturePath);
