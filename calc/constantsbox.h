#pragma once

#include "widgets/controlarray.h"
#include "widgets/rowlistview.h"

#include <QLabel>

struct RowLists;

/// The physical constants and the SI units: two tab strips, each above its lists, one list for each tab.
class ConstantsBox final : public QWidget
{
    Q_OBJECT

public:
    ConstantsBox(RowLists &lists, QSize size, QWidget *parent);

private:
    void buildConstants(RowLists &lists, const QRect &place);
    void buildUnits(RowLists &lists, const QRect &place);
    void showUnitTitles(int tab);

    ControlArray<RowListView> ListView2{"ListView2"}; ///< 0 to 4
    ControlArray<RowListView> ListView7{"ListView7"}; ///< 0 to 6
    ControlArray<QLabel> Label2{"Label2"};
};
