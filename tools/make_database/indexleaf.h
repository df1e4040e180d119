#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One index over the rows of a system table, as a single leaf page.
class IndexLeaf final
{
public:
    /// @p key is made of the keys below, column by column; the row stands at @p page and @p slot.
    void add(const QByteArray &key, quint32 page, quint8 slot);

    /// @p owner is the definition page of the table. BuildError if the entries need more than this one page.
    QByteArray page(quint32 owner) const;

    static QByteArray key(quint32 number);

    /// In the collation "General", which is known here for letters and digits: another character is
    /// BuildError.
    static QByteArray key(const QString &text);

private:
    QList<QByteArray> m_entries;
};
