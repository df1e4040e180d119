#include "store/tablecatalog.h"

#include "core/runtimeerror.h"
#include "store/datastore.h"
#include "store/rowsource.h"
#include "store/selectstatement.h"

using namespace Qt::StringLiterals;

namespace {

using TableCatalog::Step;
using TableCatalog::Surplus;

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

void countCarbonShift(const RowSource &rows, DataStore &data, int)
{
    data.tallies.carbonShifts += rows.field(2).isEmpty() ? 0 : 1;
}

void countIndicator(const RowSource &, DataStore &data, int row)
{
    const bool fluorescent = row >= 123 && row < 179;
    ++(fluorescent ? data.tallies.fluorescentIndicators : data.tallies.acidBaseIndicators);
}

void storeCodons(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.GeneticCodeData, row, rows, 7);
    data.lists.Comb2.append(rows.field(0));
}

// Row 0 of the tables of references and of infrared groups stays empty: their rows are numbered from 1.
void storeReference(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.NmrReferenceData, row + 1, rows, 2);
}

void storeIrGroup(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.IrGroupData, row + 1, rows, 2);
}

void countIrBond(const RowSource &rows, DataStore &data, int)
{
    data.tallies.irBonds += rows.field(2).isEmpty() ? 0 : 1;
}

// The colours that each ring can have: of its digit, its tolerance or its temperature coefficient.
void storeRingColour(const RowSource &rows, DataStore &data, int row)
{
    storeRow(data.tables.ResistorColourData, row, rows, 8);
    const auto add = [&](int combo, bool wanted) {
        if (wanted)
            data.lists.Combo2[combo].append(rows.field(0));
    };
    add(7, row < 10);
    add(8, QList<int>{0, 1, 3, 4, 7, 8, 9}.contains(row));
    add(9, QList<int>{2, 3, 4, 5, 6, 8, 9, 11}.contains(row));
    for (const int combo : {4, 5, 6})
        add(combo, row > 1);
}

void addCode(const RowSource &rows, DataStore &data, int)
{
    data.lists.Combo4.append(rows.field(0));
}

// NOLINTNEXTLINE(readability-function-size): a table
const QList<Step> &steps()
{
    static const QList<Step> table{
        // 1: the list has the refractive index before the CAS number.
        {"SELECT solvant,massemol,massevol,tempfus,tempebul,cas,indicerefrac FROM Solvants",
         {{list<&RowLists::ListView1>, 0, {0, 1, 2, 3, 4, 6, 5}}}},
        {"SELECT solvant,protons,pic,chloroform,acetone,dmso,benzene,acetonitrile,methanol,water FROM RMN1H",
         {{list<&RowLists::ListView4>}}},
        {"SELECT "
         "atome,symb,nbato,masseato,elecconf,densite,melt,boilt,electroneg,ionis,rayon,oxi,etat,famille,"
         "cristallo,iso1,demie1,rayon1,iso2,demie2,rayon2,iso3,demie3,rayon3,iso4,demie4,rayon4,iso5,demie5,"
         "rayon5 FROM Elements",
         {{nullptr}},
         Surplus::ToFirstGroup,
         storeElement},
        {"SELECT solvant,polarite,solubeau,nonmiscible FROM Miscibilite", {{list<&RowLists::ListView6>}}},
        {"SELECT solvant,carbone,chloroform,acetone,dmso,benzene,acetonitrile,methanol,water FROM RMN13C",
         {{list<&RowLists::ListView5>}},
         Surplus::ToFirstGroup,
         countCarbonShift},
        // 6
        {"SELECT cst,abrev,valeur,unit FROM Constantes",
         {{ListView2<0>, 10}, {ListView2<1>, 6}, {ListView2<2>, 14}, {ListView2<3>, 11}, {ListView2<4>, 4}},
         Surplus::StartsOver},
        {"SELECT nom,unites,ab,abd1,abd2 FROM Unites",
         {{ListView7<0>, 7},
          {ListView7<1>, 13},
          {ListView7<2>, 13},
          {ListView7<3>, 8},
          {ListView7<4>, 24},
          {ListView7<5>, 4},
          {ListView7<6>, 6}},
         Surplus::StartsOver},
        {"SELECT indic,zone,color FROM Indicateurscolores",
         {{ListView3<0>, 60}, {ListView3<1>, 63}, {ListView3<6>, 56}},
         Surplus::ToFirstGroup,
         countIndicator},
        {"SELECT solvant,agent FROM Dessiccation", {{list<&RowLists::ListView8>}}},
        {"SELECT mixture,temp FROM Refrigeration", {{list<&RowLists::ListView9>}}},
        // 11
        {"SELECT acid,formula,pKa1,pKa2,pKa3,pKa4 FROM Couplesacidebase",
         {{ListView3<2>, 51}, {ListView3<3>, 92}}},
        {"SELECT reaction,pot FROM Couplesredox", {{ListView3<4>}}},
        {"SELECT dye, l1, l2 FROM Fluorochromes", {{ListView3<7>, 242}, {ListView3<8>, 318}}},
        // The natural amino acids leave out pkd, the others their code: nine sub-items each.
        {"SELECT aa, cod, for, mw, mt, pka, pkb, pkc, pkd, pi, sol FROM Acidesamines",
         {{ListView3<9>, 20, {0, 1, 2, 3, 4, 5, 6, 7, 9, 10}},
          {ListView3<10>, 53, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10}}},
         Surplus::Unread},
        {"SELECT base, form, mw, pka1, pka2, pka3, S FROM Basesazotees",
         {{ListView3<11>, 6}, {ListView3<13>, 7}},
         Surplus::Unread},
        // 16
        {"SELECT sucre, symb, nom FROM Carbohydrates", {{ListView3<14>, 73}}, Surplus::Unread},
        {"SELECT lipid, name, form, mw, mt, s FROM Acidesgras", {{ListView3<12>, 33}}, Surplus::Unread},
        {"SELECT aa, c1,c2,c3,c4,c5,c6 FROM Codegenetique", {{nullptr}}, Surplus::ToFirstGroup, storeCodons},
        {"SELECT motif FROM RMN1Hspectro", {{ListView3<15>, 250}}},
        {"SELECT motif2 FROM RMN13Cspectro", {{ListView3<16>, 418}}},
        // 21
        {"SELECT domaine,conc FROM Sdspagedomain", {{ListView3<17>, 5}}, Surplus::Unread},
        {"SELECT kit,protein,mw FROM Sdspagekits", {{ListView3<18>, 25}}, Surplus::Unread},
        {"SELECT produit,conc,qte FROM Sdspagestain",
         {{ListView3<19>, 21}, {ListView3<20>, 30}},
         Surplus::Unread},
        {"SELECT produit,conc,qte FROM Sdspagestock", {{ListView3<21>, 47}}},
        {"SELECT nom, a, b, c, d, e FROM Sdspagegels", {{ListView3<22>, 47}, {ListView3<23>, 31, {0, 1}}}},
        // 26
        {"SELECT nom, formule, ks FROM Solubilite", {{ListView3<24>, 159}}},
        {"SELECT eq, kf FROM Complexes", {{ListView3<25>, 89}}},
        {"SELECT nom, a,b,c,d,e,f,g,h,i,j FROM Masse", {{ListView3<26>, 200}}},
        {"SELECT ref, journal FROM RMNref", {{nullptr, 31}}, Surplus::Unread, storeReference},
        {"SELECT motif3, groupe FROM IRgraphe", {{ListView3<5>}}, Surplus::ToFirstGroup, storeIrGroup},
        // 31
        {"SELECT group, molec, wave FROM IRvalues", {{ListView3<27>}}, Surplus::ToFirstGroup, countIrBond},
        {"SELECT couleur, coef1, coef2, coef3, mult, tol, temp, col FROM Resistancescouleurs",
         {{nullptr}},
         Surplus::ToFirstGroup,
         storeRingColour},
        {"SELECT E3, E6, E12, E24, E48, E96, E192 FROM Resistancesnormalisees", {{ListView3<28>}}},
        {"SELECT code, valeur FROM Resistancescms", {{ListView3<29>}}, Surplus::ToFirstGroup, addCode},
        {"SELECT orga FROM Reaction", {{ListView3<31>}}},
    };
    return table;
}

// Where row @p row of the list of group @p group is in the table: after the groups before it, or among the
// rows that are left over after the last group.
int placeInTable(const Step &step, int group, int row)
{
    int before = 0;
    int all = 0;
    for (int each = 0; each < step.groups.size(); ++each) {
        before += each < group ? step.groups[each].rows : 0;
        all += step.groups[each].rows;
    }
    const int own = step.groups[group].rows;
    if (own == 0 || row < own)
        return before + row;
    return step.surplus == Surplus::StartsOver ? row / own * all + before + row % own : all + row - own;
}

SelectStatement parsed(int step)
{
    return SelectStatement::parse(TableCatalog::statement(step)).value();
}

} // namespace

const Step &TableCatalog::at(int step)
{
    if (step < FirstStep || step > LastStep)
        throw RuntimeError(ErrorNumber::Subscript, u"load step %1"_s.arg(step));
    return steps()[step - FirstStep];
}

QString TableCatalog::statement(int step)
{
    return QString::fromLatin1(at(step).statement);
}

QString TableCatalog::table(int step)
{
    return parsed(step).table;
}

QStringList TableCatalog::columns(int step)
{
    return parsed(step).columns;
}

int TableCatalog::rowCount(int step)
{
    int rows = 0;
    for (const Group &group : at(step).groups)
        rows += group.rows;
    return rows;
}

TableRow TableCatalog::rowOf(const RowList &list, int row)
{
    const auto [number, group] = list.origin();
    if (number == 0)
        return {};
    const QStringList all = columns(number);
    const QList<int> fields = at(number).groups[group].fields;
    const qsizetype count = fields.isEmpty() ? all.size() : fields.size();
    TableRow found{table(number), placeInTable(at(number), group, row), {}, {}};
    for (int cell = 0; cell < count; ++cell) {
        found.columns << all[fields.isEmpty() ? cell : fields[cell]];
        found.texts << list.subItem(row, cell);
    }
    return found;
}

TableRow TableCatalog::rowOf(int step, int row, const QStringList &texts)
{
    return {table(step), row, columns(step).first(texts.size()), texts};
}
