// cristal/: the unit cell of each crystal structure that occurs among the elements, in perspective.
#pragma once

class PictureFolder;
class QString;

/// Draws "<name>.bmp" for each name in the column cristallo except "-". A name without a cell here is an
/// error.
void drawCrystals(const QString &data, const PictureFolder &pictures);
