#pragma once

#include "tools/make_database/tablefile.h"

#include <QByteArray>

namespace DatabaseFile {

/// The bytes of a Jet 4 database of @p tables, in their order, that asks for @p password (at most 20
/// characters). The same input gives the same bytes. BuildError if a row or the whole is too large.
QByteArray make(const QList<TableData> &tables, const QString &password);

} // namespace DatabaseFile
