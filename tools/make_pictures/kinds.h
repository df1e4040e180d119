// The kinds of pictures, a function each: it draws all of its kind from the tables of the folder @p data.
// BuildError for a row that cannot be drawn.
#pragma once

class PictureFolder;
class QString;

/// elements/: the cards of the elements 1 to 105, and one of 106 to 118, small ("<Z>.jpg") and large
/// ("<Z>b.jpg").
void drawElements(const QString &data, const PictureFolder &pictures);

/// cristal/: the unit cell of each crystal structure that occurs among the elements, in perspective:
/// "<name>.bmp" for each name in the column cristallo except "-".
void drawCrystals(const QString &data, const PictureFolder &pictures);

/// chemicals/: structural formulas of the solvents and of the natural amino acids, black on white:
/// "<row>.bmp", counted from 1, and "<name>.bmp" for each solvent.
///
/// Solvents and amino acids share the numbers, so a picture whose number belongs to both shows both formulas
/// side by side. The picture with a solvent's name shows the solvent alone.
void drawStructures(const QString &data, const PictureFolder &pictures);

/// ir/: the infrared correlation charts 1 to 6, one for each group of compounds. "<group>.gif" has the motifs
/// of the group in the order of the list, each with its bands as bars in the colour of their bond, on the
/// scale of ChartGeometry.
void drawIrCharts(const QString &data, const PictureFolder &pictures);

/// nmr/1h/ and nmr/13c/: a chart of chemical shifts for each row of the two lists of motifs. The overview
/// rows come first and are numbered from 1000; the motif rows are numbered from 2.
void drawNmrCharts(const QString &data, const PictureFolder &pictures);

/// orga/: "<row>.gif", the equation of each named reaction with its conditions, and "<row>m.gif", the steps
/// of the mechanism with what happens in each. The pane does not scroll these pictures: each is drawn as
/// large as its visible part allows.
void drawReactions(const QString &data, const PictureFolder &pictures);

/// img/polarite_c.jpg, img/polarite_ng.jpg: the classes of solvents from non polar to polar, in colour and in
/// greys, of the size that the reports state. Takes nothing from @p data.
void drawPolarity(const QString &data, const PictureFolder &pictures);

/// img/gene_c.jpg, img/gene_ng.jpg: the table of the genetic code, for the reports, in colour and in greys.
/// Takes nothing from @p data.
void drawGeneticCode(const QString &data, const PictureFolder &pictures);
