// chemicals/: structural formulas of the solvents and of the natural amino acids, black on white.
#pragma once

class PictureFolder;
class QString;

/// Draws "<row>.bmp" and "<name>.bmp" for each solvent with a structure, rows counted from 1.
///
/// Solvents and amino acids share the numbers, so a picture whose number belongs to both shows both formulas
/// side by side. The picture with a solvent's name shows the solvent alone.
void drawStructures(const QString &data, const PictureFolder &pictures);
