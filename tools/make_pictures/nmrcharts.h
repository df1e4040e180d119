// nmr/1h/ and nmr/13c/: a chart of chemical shifts for each row of the two lists of motifs.
#pragma once

class PictureFolder;
class QString;

/// Draws the charts of both nuclei. The overview rows come first and are numbered from 1000; the motif
/// rows are numbered from 2.
void drawNmrCharts(const QString &data, const PictureFolder &pictures);
