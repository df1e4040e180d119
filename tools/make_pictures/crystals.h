// cristal/: the unit cell of each crystal structure that occurs among the elements, in perspective.
#pragma once

class PictureFolder;
class QString;

/// Draws "<name>.bmp" for each name in the column cristallo except "-". BuildError for a name without a
/// drawing.
void drawCrystals(const QString &data, const PictureFolder &pictures);
