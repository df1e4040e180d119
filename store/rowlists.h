#pragma once

#include "core/runtimeerror.h"
#include "store/rowlist.h"

#include <array>

/// An array of lists, "ListView3(29)". Indices start at 0.
template<size_t Count>
class RowListArray final
{
public:
    /// RuntimeError 9 for an index outside the array.
    RowList &operator[](int index)
    {
        using namespace Qt::StringLiterals;
        if (index < 0 || size_t(index) >= Count)
            throw RuntimeError(ErrorNumber::Subscript, u"list %1"_s.arg(index));
        return m_lists[size_t(index)];
    }
    const RowList &operator[](int index) const { return const_cast<RowListArray &>(*this)[index]; }

private:
    std::array<RowList, Count> m_lists;
};

/// All lists of the system, by name. Panes, searches and reports read their rows from here and nowhere else.
///
/// The drop-downs that are filled from tables are included, with one text for each row: `Combo2(3)` has the
/// names of the elements, `Combo2(4)` to `Combo2(9)` the colours of the rings, `Comb2` the amino acids,
/// `Combo4` the codes.
struct RowLists final
{
    RowList ListView1;         ///< solvents: properties
    RowListArray<7> ListView2; ///< 0 to 4: constants; 6: the hits of a search
    RowListArray<32> ListView3;
    RowList ListView4;         ///< proton shifts of impurities
    RowList ListView5;         ///< carbon shifts of impurities
    RowList ListView6;         ///< miscibility and polarity
    RowListArray<7> ListView7; ///< SI units
    RowList ListView8;         ///< drying agents
    RowList ListView9;         ///< cooling mixtures
    RowListArray<10> Combo2;
    RowList Comb2;
    RowList Combo4;
};

/// Functions that pick a list by index, for tables of lists: `ListView3<7>`.
template<int Index, class Lists>
auto ListView2(Lists &lists) -> decltype((lists.ListView2[Index]))
{
    return lists.ListView2[Index];
}
template<int Index, class Lists>
auto ListView3(Lists &lists) -> decltype((lists.ListView3[Index]))
{
    return lists.ListView3[Index];
}
template<int Index, class Lists>
auto ListView7(Lists &lists) -> decltype((lists.ListView7[Index]))
{
    return lists.ListView7[Index];
}
