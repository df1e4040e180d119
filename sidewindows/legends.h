#pragma once

class QWidget;
struct MemoryTables;

// Windows that explain signs, each created above @p form1 when it opens.

/// `Formhelp`, "Captions": the values of the element panel and their meanings. Closing it also closes
/// `Form2`.
void openCaptions(QWidget &form1);

/// `Formhelp2`: the abbreviations of journals in NMR references, from `NmrReferenceData`: row 1 to the first
/// empty one.
void openJournals(const MemoryTables &tables, QWidget &form1);

/// `Formhelp3`: the colours of the bonds in the infrared charts.
void openColourCode(QWidget &form1);

/// `Formhelp4`: a mnemonic for the colour code of resistors.
void openMnemonic(QWidget &form1);
