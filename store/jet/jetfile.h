#pragma once

#include "store/jet/jetcursor.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>

/// An Access database of the form Jet 4 (Access 2000 to 2003), read whole into memory and never written.
///
/// Everything that fails is a RuntimeError. Damage to the file is always DatabaseFailure: no number in a file
/// leads outside of it, and the time to read it grows with its size.
class JetFile final
{
public:
    /// Reads a regular file of at most 512 MiB.
    ///
    /// The password is compared exactly, with case; a file that has none opens with any. Nothing but this
    /// comparison guards the data: a password encrypts nothing. FileNotFound or another file error if @p path
    /// cannot be read, DatabaseFailure if it is no such database or the password is another.
    static JetFile open(const QString &path, const QString &password);

    /// The same from the bytes of a file.
    static JetFile fromBytes(QByteArray bytes, const QString &password);

    /// Names of the user's tables, in the order of the catalogue.
    QStringList tables() const { return m_tables; }

    /// The table of that name, compared without case. TableNotFound if the catalogue has none of that name,
    /// and only then.
    JetDefinition table(const QString &name) const;

    JetCursor rows(const JetDefinition &table) const { return {m_pages, table}; }

private:
    explicit JetFile(std::shared_ptr<const JetPages> pages);
    void readCatalogue();

    std::shared_ptr<const JetPages> m_pages;
    QStringList m_tables;
    QHash<QString, quint32> m_definitionPages; ///< by name in lower case
};
