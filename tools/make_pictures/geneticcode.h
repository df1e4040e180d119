// img/gene_c.jpg, img/gene_ng.jpg and img/gene.png: the table of the genetic code, for the reports and for
// the pane.
#pragma once

#include <QHash>
#include <QString>

class PictureFolder;
class Table;

/// What each of the 64 codons stands for: the amino acid by its code of three letters, or "Stop".
///
/// @p code: amino acids with their codons (aa, c1 to c6); a name may stand in more than one row. @p acids:
/// their codes (aa, cod). Throws BuildError if a codon is missing, written wrongly or claimed twice.
QHash<QString, QString> codonTable(const Table &code, const Table &acids);

/// Draws the table in colour and in greys.
void drawGeneticCode(const QString &data, const PictureFolder &pictures);
