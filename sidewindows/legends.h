#pragma once

class QWidget;
struct MemoryTables;

// The windows that explain signs. Each is made anew when it opens above @p form1.

/// `Formhelp`, "Captions": the values of the element panel and what each of them means. Closing it also
/// closes `Form2`.
void openCaptions(QWidget &form1);

/// `Formhelp2`: the abbreviations of journals in NMR references. Lists the rows of @p tables'
/// `NmrReferenceData` from row 1 to the first empty one.
void openJournals(const MemoryTables &tables, QWidget &form1);

/// `Formhelp3`: the colours of the bonds in the infrared charts.
void openColourCode(QWidget &form1);

/// `Formhelp4`: a mnemonic for the colour code of resistors.
void openMnemonic(QWidget &form1);
