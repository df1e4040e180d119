#pragma once

#include "store/memorytables.h"
#include "store/rowlist.h"
#include "widgets/sidewindow.h"

/// The journals behind the abbreviations that stand beside NMR charts.
class Formhelp2 final : public SideWindow
{
    Q_OBJECT

public:
    /// Shows the rows of @p tables' `NmrReferenceData` from row 1 up to an empty one.
    Formhelp2(const MemoryTables &tables, QWidget &form1);

private:
    QLayout *buildCode();
    QWidget *buildList();

    RowList m_journals;
};

void openJournals(const MemoryTables &tables, QWidget &form1);
