// elements/: the cards of the elements 1 to 105, and one of 106 to 118, small ("<Z>.jpg") and large
// ("<Z>b.jpg").
#pragma once

#include <QList>
#include <QString>

class PictureFolder;

/// The last card. The program shows it for this element and all heavier ones.
inline constexpr int LastCard = 106;

/// Electrons in the shells K, L, M ... of a configuration written out, "1s2 2s2 2p6". Empty if it cannot be
/// read.
QList<int> electronsInShells(const QString &configuration);

/// The block, 's', 'p', 'd' or 'f', as the program arranges its periodic table: lanthanum and actinium are in
/// group 3, the rows from Ce to Lu and from Th to Lr are the f block.
char blockOf(int atomicNumber);

void drawElements(const QString &data, const PictureFolder &pictures);
