#include "store/gridlines.h"

#include "store/rowlists.h"

void ApplyGridLines(RowLists &lists, bool on)
{
    for (RowList *list : {&lists.ListView1, &lists.ListView4, &lists.ListView5, &lists.ListView6,
                          &lists.ListView8, &lists.ListView9})
        list->setGridLines(on);
    for (int index = 0; index <= 6; ++index)
        lists.ListView7[index].setGridLines(on);
    for (int index = 0; index <= 4; ++index)
        lists.ListView2[index].setGridLines(on);
    for (int index = 0; index <= 27; ++index) {
        if (index != 5 || !on)
            lists.ListView3[index].setGridLines(on);
    }
}
