// ir/: the infrared correlation charts 1 to 6, one for each group of compounds.
#pragma once

class PictureFolder;
class QString;

/// Draws "<group>.gif": the motifs of the group in the order of the list, each with its bands as bars in the
/// colour of their bond, on the scale of ChartGeometry.
void drawIrCharts(const QString &data, const PictureFolder &pictures);
