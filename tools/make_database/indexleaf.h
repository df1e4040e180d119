#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One index over the rows of a system table, as a single leaf page.
class IndexLeaf final
{
public:
    /// @p key is the keys of the columns, joined, as the functions below make them; @p page and @p slot
    /// locate the row.
    void add(const QByteArray &key, quint32 page, quint8 slot);

    /// @p owner is the definition page of the table. BuildError if the entries need more than this one page.
    QByteArray page(quint32 owner) const;

    static QByteArray key(quint32 number);

    /// In the collation "General", which is implemented for letters and digits: BuildError for another
    /// character.
    static QByteArray key(const QString &text);

private:
    QList<QByteArray> m_entries;
};
