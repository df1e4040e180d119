#pragma once

#include "store/jet/jetcursor.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>

/// An Access database in Jet 4 format (Access 2000 to 2003), read whole into memory and never written.
///
/// All errors are RuntimeError; damage is always DatabaseFailure. Reads stay inside the file, and the time
/// that they take grows with its size.
class JetFile final
{
public:
    /// Reads a regular file of at most 512 MiB.
    ///
    /// The password is case-sensitive; a file without one opens with any. It does not encrypt the data.
    /// FileNotFound or another file error if @p path cannot be read, PermissionDenied if another process has
    /// locked it, DatabaseFailure if it is not such a
    /// database or the password is wrong.
    static JetFile open(const QString &path, const QString &password);

    /// The same, from the bytes of a file.
    static JetFile fromBytes(QByteArray bytes, const QString &password);

    /// Names of the user's tables, in the order of the catalogue.
    QStringList tables() const { return m_tables; }

    /// The table of that name, ignoring case. TableNotFound only if the catalogue has no such table.
    JetDefinition table(const QString &name) const;

    JetCursor rows(const JetDefinition &table) const { return {m_pages, table}; }

private:
    explicit JetFile(std::shared_ptr<const JetPages> pages);
    void readCatalogue();

    std::shared_ptr<const JetPages> m_pages;
    QStringList m_tables;
    QHash<QString, quint32> m_definitionPages; ///< by name in lower case
};
