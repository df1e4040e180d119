#pragma once

#include "store/recordedsource.h"

#include <QString>

/// What `frmSource` shows: where a row comes from, in words.
namespace SourcePage {

/// A page of HTML: the row's name, each document with its licence, and the doubt if somebody has one. Web
/// addresses and DOIs in it are links.
QString html(const TableRow &row, const RecordedSource &recorded);

} // namespace SourcePage
