// ir/: the infrared correlation charts 1 to 6, one for each group of compounds.
#pragma once

class PictureFolder;
class QString;

/// Draws "<group>.gif". The bands stand under the motifs that the list offers for the group, in its order, as
/// bars in the colour of their bond, on the scale of ChartGeometry.
void drawIrCharts(const QString &data, const PictureFolder &pictures);
