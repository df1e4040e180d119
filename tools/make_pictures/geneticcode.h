// img/gene_c.jpg, img/gene_ng.jpg: the table of the genetic code, for the reports.
#pragma once

class PictureFolder;
class QString;

/// Draws the table in colour and in greys. Takes nothing from @p data.
void drawGeneticCode(const QString &data, const PictureFolder &pictures);
