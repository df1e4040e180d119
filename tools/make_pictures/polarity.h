// img/polarite_c.jpg, img/polarite_ng.jpg: the classes of solvents from non polar to polar, for the reports.
#pragma once

class PictureFolder;
class QString;

/// Draws the ladder in colour and in greys, of the size that the reports give the picture. Takes nothing from
/// @p data.
void drawPolarity(const QString &data, const PictureFolder &pictures);
