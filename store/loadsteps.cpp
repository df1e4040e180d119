#include "store/loadsteps.h"

#include "core/runtimeerror.h"

#include <QList>
#include <functional>
#include <map>
#include <numeric>

namespace {

using RowHandler = std::function<void(const RowSource &, DataStore &, int row)>;

/// Which list a run of rows goes to, and which field goes where: the first is the text, the others the
/// sub-items.
struct Target
{
    RowList &(*list)(RowLists &);
    QList<int> fields;
    int stop = 0; ///< by count: rows go here while their number, from 1, is below it; by range: their count
};

enum class Form {
    Plain,        ///< all rows to the one target
    ByCount,      ///< exactly up to the last stop; further rows stay unread
    ByCountOuter, ///< further rows go to the first target
    ByRangeOuter, ///< further rows go round the targets again
};

struct Step
{
    Form form = Form::Plain;
    QList<Target> targets;
    RowHandler handler = {}; ///< what the step does with a row besides, given its number from 0
};

QList<int> fieldsUpTo(int last)
{
    QList<int> fields(last + 1);
    std::iota(fields.begin(), fields.end(), 0);
    return fields;
}

template<int Index>
RowList &ListView2(RowLists &lists)
{
    return lists.ListView2[Index];
}
template<int Index>
RowList &ListView3(RowLists &lists)
{
    return lists.ListView3[Index];
}
template<int Index>
RowList &ListView7(RowLists &lists)
{
    return lists.ListView7[Index];
}
template<RowList RowLists::*List>
RowList &list(RowLists &lists)
{
    return lists.*List;
}

template<int Rows, int Columns>
void storeRow(TextTable<Rows, Columns> &table, int row, const RowSource &rows, int fieldCount)
{
    for (int field = 0; field < fieldCount; ++field)
        table(row, field) = rows.field(field).toString();
}

void storeElement(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.ElementData, row, rows, 30);
    data.lists.Combo2[3].append(rows.field(0));
    for (int group = 0; group < 5; ++group)
        data.tallies.isotopes += rows.field(ElementColumn::FirstIsotope + 3 * group).isEmpty() ? 0 : 1;
}

void storeCodons(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.GeneticCodeData, row, rows, 7);
    data.lists.Comb2.append(rows.field(0));
}

// Which colours a ring can have: digits, then tolerances and temperature coefficients by the rows that have
// one.
void storeRingColour(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.ResistorColourData, row, rows, 8);
    const QStringView colour = rows.field(0);
    const auto add = [&](int list, bool wanted) {
        if (wanted)
            data.lists.Combo2[list].append(colour);
    };
    add(7, row < 10);
    add(8, QList<int>{0, 1, 3, 4, 7, 8, 9}.contains(row));
    add(9, QList<int>{2, 3, 4, 5, 6, 8, 9, 11}.contains(row));
    for (const int list : {4, 5, 6})
        add(list, row > 1);
}

void countIndicator(DataStore &data, int row)
{
    const bool fluorescent = row >= 123 && row < 179;
    ++(fluorescent ? data.tallies.fluorescentIndicators : data.tallies.acidBaseIndicators);
}

// NOLINTNEXTLINE(readability-function-size): a table
const std::map<int, Step> &steps()
{
    static const std::map<int, Step> table{
        // The list shows the refractive index before the CAS number, the table holds them the other way
        // round.
        {1, {Form::Plain, {{list<&RowLists::ListView1>, {0, 1, 2, 3, 4, 6, 5}}}}},
        {2, {Form::Plain, {{list<&RowLists::ListView4>, fieldsUpTo(9)}}}},
        {3, {Form::Plain, {}, storeElement}},
        {4, {Form::Plain, {{list<&RowLists::ListView6>, fieldsUpTo(3)}}}},
        {5,
         {Form::Plain,
          {{list<&RowLists::ListView5>, fieldsUpTo(8)}},
          [](const RowSource &rows, DataStore &data, int) {
              data.tallies.carbonShifts += rows.field(2).isEmpty() ? 0 : 1;
          }}},
        {6,
         {Form::ByRangeOuter,
          {{ListView2<0>, fieldsUpTo(3), 10},
           {ListView2<1>, fieldsUpTo(3), 6},
           {ListView2<2>, fieldsUpTo(3), 14},
           {ListView2<3>, fieldsUpTo(3), 11},
           {ListView2<4>, fieldsUpTo(3), 4}}}},
        {7,
         {Form::ByRangeOuter,
          {{ListView7<0>, fieldsUpTo(4), 7},
           {ListView7<1>, fieldsUpTo(4), 13},
           {ListView7<2>, fieldsUpTo(4), 13},
           {ListView7<3>, fieldsUpTo(4), 8},
           {ListView7<4>, fieldsUpTo(4), 24},
           {ListView7<5>, fieldsUpTo(4), 4},
           {ListView7<6>, fieldsUpTo(4), 6}}}},
        {8,
         {Form::ByCountOuter,
          {{ListView3<0>, fieldsUpTo(2), 61},
           {ListView3<1>, fieldsUpTo(2), 124},
           {ListView3<6>, fieldsUpTo(2), 180}},
          [](const RowSource &, DataStore &data, int row) { countIndicator(data, row); }}},
        {9, {Form::Plain, {{list<&RowLists::ListView8>, fieldsUpTo(1)}}}},
        {10, {Form::Plain, {{list<&RowLists::ListView9>, fieldsUpTo(1)}}}},
        {11, {Form::ByCountOuter, {{ListView3<2>, fieldsUpTo(5), 52}, {ListView3<3>, fieldsUpTo(5), 144}}}},
        {12, {Form::Plain, {{ListView3<4>, fieldsUpTo(1)}}}},
        {13, {Form::ByCountOuter, {{ListView3<7>, fieldsUpTo(2), 243}, {ListView3<8>, fieldsUpTo(2), 561}}}},
        // Natural amino acids leave out pkd, the others their code: nine sub-items each.
        {14,
         {Form::ByCount,
          {{ListView3<9>, {0, 1, 2, 3, 4, 5, 6, 7, 9, 10}, 21},
           {ListView3<10>, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 74}}}},
        {15, {Form::ByCount, {{ListView3<11>, fieldsUpTo(6), 7}, {ListView3<13>, fieldsUpTo(6), 14}}}},
        {16, {Form::ByCount, {{ListView3<14>, fieldsUpTo(2), 74}}}},
        {17, {Form::ByCount, {{ListView3<12>, fieldsUpTo(5), 34}}}},
        {18, {Form::Plain, {}, storeCodons}},
        {19, {Form::ByCountOuter, {{ListView3<15>, {0}, 251}}}},
        {20, {Form::ByCountOuter, {{ListView3<16>, {0}, 419}}}},
        {21, {Form::ByCount, {{ListView3<17>, fieldsUpTo(1), 6}}}},
        {22, {Form::ByCount, {{ListView3<18>, fieldsUpTo(2), 26}}}},
        {23, {Form::ByCount, {{ListView3<19>, fieldsUpTo(2), 22}, {ListView3<20>, fieldsUpTo(2), 52}}}},
        {24, {Form::ByCountOuter, {{ListView3<21>, fieldsUpTo(2), 48}}}},
        {25, {Form::ByCountOuter, {{ListView3<22>, fieldsUpTo(5), 48}, {ListView3<23>, fieldsUpTo(1), 79}}}},
        {26, {Form::ByCountOuter, {{ListView3<24>, fieldsUpTo(2), 160}}}},
        {27, {Form::ByCountOuter, {{ListView3<25>, fieldsUpTo(1), 90}}}},
        {28, {Form::ByCountOuter, {{ListView3<26>, fieldsUpTo(10), 201}}}},
        // Row 0 of both tables stays empty: their rows are numbered from 1.
        {29,
         {Form::ByCount,
          {{nullptr, {}, 32}},
          [](const RowSource &rows, DataStore &data, int row) {
              storeRow(data.tables.NmrReferenceData, row + 1, rows, 2);
          }}},
        {30,
         {Form::Plain,
          {{ListView3<5>, fieldsUpTo(1)}},
          [](const RowSource &rows, DataStore &data, int row) {
              storeRow(data.tables.IrGroupData, row + 1, rows, 2);
          }}},
        {31,
         {Form::Plain,
          {{ListView3<27>, fieldsUpTo(2)}},
          [](const RowSource &rows, DataStore &data, int) {
              data.tallies.irBonds += rows.field(2).isEmpty() ? 0 : 1;
          }}},
        {32, {Form::Plain, {}, storeRingColour}},
        {33, {Form::Plain, {{ListView3<28>, fieldsUpTo(6)}}}},
        {34,
         {Form::Plain,
          {{ListView3<29>, fieldsUpTo(1)}},
          [](const RowSource &rows, DataStore &data, int) { data.lists.Combo4.append(rows.field(0)); }}},
        {35, {Form::Plain, {{ListView3<31>, {0}}}}},
    };
    return table;
}

/// The rows of one step on their way into the store.
class StepRun
{
public:
    StepRun(const Step &step, int number, RowSource &rows, DataStore &data)
        : m_step(step), m_number(number), m_rows(rows), m_data(data)
    {}

    void all()
    {
        switch (m_step.form) {
        case Form::Plain:
            return plain();
        case Form::ByCount:
            return upToTheStops();
        case Form::ByCountOuter:
            if (m_rows.atEnd())
                return;
            upToTheStops();
            while (!m_rows.atEnd())
                take(&m_step.targets.constFirst());
            return;
        case Form::ByRangeOuter:
            while (!m_rows.atEnd())
                byRange();
            return;
        }
    }

private:
    void plain()
    {
        const Target *target = m_step.targets.isEmpty() ? nullptr : &m_step.targets.constFirst();
        while (!m_rows.atEnd())
            take(target);
    }

    void upToTheStops()
    {
        for (const Target &target : m_step.targets) {
            while (m_row + 1 < target.stop)
                take(&target);
        }
    }

    void byRange()
    {
        for (const Target &target : m_step.targets) {
            for (int i = 0; i < target.stop; ++i)
                take(&target);
        }
    }

    void take(const Target *target)
    {
        if (target && target->list) {
            RowList &list = target->list(m_data.lists);
            list.append(m_rows.field(target->fields.constFirst()));
            for (qsizetype cell = 1; cell < target->fields.size(); ++cell)
                list.appendSubItem(m_rows.field(target->fields[cell]));
        }
        if (m_step.handler)
            m_step.handler(m_rows, m_data, m_row);
        ++m_data.tallies.rows[size_t(m_number)];
        ++m_row;
        m_rows.moveNext();
    }

    const Step &m_step;
    const int m_number;
    RowSource &m_rows;
    DataStore &m_data;
    int m_row = 0;
};

} // namespace

void LoadSteps::run(int step, RowSource &rows, DataStore &data)
{
    const auto found = steps().find(step);
    if (found == steps().end())
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("load step %1").arg(step));
    StepRun(found->second, step, rows, data).all();
}
