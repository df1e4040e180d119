// chemicals/: structural formulas of the solvents and of the natural amino acids, black on white.
#pragma once

class PictureFolder;
class QString;

/// Draws "<row>.bmp" and "<name>.bmp" for each solvent with a structure, rows counted from 1.
///
/// The windows of the solvents and of the amino acids share the numbers, so a number that belongs to both
/// shows both formulas side by side; the picture under a solvent's name shows the solvent alone.
void drawStructures(const QString &data, const PictureFolder &pictures);
