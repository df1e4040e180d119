// The electrons of the elements, for their cards.
#pragma once

#include <QList>
#include <QString>

/// The last card. The program shows it for this element and all heavier ones.
inline constexpr int LastCard = 106;

/// Electrons in the shells K, L, M ... of a configuration written out, "1s2 2s2 2p6". Empty if it cannot be
/// read.
QList<int> electronsInShells(const QString &configuration);

/// The block, 's', 'p', 'd' or 'f', as the program arranges its periodic table: lanthanum and actinium are in
/// group 3, the rows from Ce to Lu and from Th to Lr are the f block.
char blockOf(int atomicNumber);
