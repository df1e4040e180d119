#include "browsers/geneticcode.h"

std::optional<QString> GeneticCode::aminoAcid(const Table &table, const QString &codon)
{
    constexpr int LastColumnSearched = 5; // the name in column 0 never equals a codon
    std::optional<QString> found;
    for (int row = 0; row < Table::rowCount(); ++row) {
        for (int column = 0; column <= LastColumnSearched; ++column) {
            if (table(row, column) == codon)
                found = table(row, 0);
        }
    }
    return found;
}

QStringList GeneticCode::codons(const Table &table, int row)
{
    QStringList codons;
    for (int column = 1; column <= CodonCount; ++column)
        codons << table(row, column);
    return codons;
}
