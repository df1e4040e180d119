#include "store/tablecatalog.h"

#include "store/selectstatement.h"

#include <array>

namespace {

struct Step
{
    const char *statement;
    int rows; // 0: any number
};

// Sent as they stand; `for` and `group` are column names without quotes.
constexpr std::array<Step, TableCatalog::LastStep> Steps{{
    {"SELECT solvant,massemol,massevol,tempfus,tempebul,cas,indicerefrac FROM Solvants", 0},
    {"SELECT solvant,protons,pic,chloroform,acetone,dmso,benzene,acetonitrile,methanol,water FROM RMN1H", 0},
    {"SELECT "
     "atome,symb,nbato,masseato,elecconf,densite,melt,boilt,electroneg,ionis,rayon,oxi,etat,famille,"
     "cristallo,iso1,demie1,rayon1,iso2,demie2,rayon2,iso3,demie3,rayon3,iso4,demie4,rayon4,iso5,demie5,"
     "rayon5 FROM Elements",
     0},
    {"SELECT solvant,polarite,solubeau,nonmiscible FROM Miscibilite", 0},
    {"SELECT solvant,carbone,chloroform,acetone,dmso,benzene,acetonitrile,methanol,water FROM RMN13C", 0},
    {"SELECT cst,abrev,valeur,unit FROM Constantes", 45},
    {"SELECT nom,unites,ab,abd1,abd2 FROM Unites", 75},
    {"SELECT indic,zone,color FROM Indicateurscolores", 179},
    {"SELECT solvant,agent FROM Dessiccation", 0},
    {"SELECT mixture,temp FROM Refrigeration", 0},
    {"SELECT acid,formula,pKa1,pKa2,pKa3,pKa4 FROM Couplesacidebase", 143},
    {"SELECT reaction,pot FROM Couplesredox", 0},
    {"SELECT dye, l1, l2 FROM Fluorochromes", 560},
    {"SELECT aa, cod, for, mw, mt, pka, pkb, pkc, pkd, pi, sol FROM Acidesamines", 73},
    {"SELECT base, form, mw, pka1, pka2, pka3, S FROM Basesazotees", 13},
    {"SELECT sucre, symb, nom FROM Carbohydrates", 73},
    {"SELECT lipid, name, form, mw, mt, s FROM Acidesgras", 33},
    {"SELECT aa, c1,c2,c3,c4,c5,c6 FROM Codegenetique", 0},
    {"SELECT motif FROM RMN1Hspectro", 250},
    {"SELECT motif2 FROM RMN13Cspectro", 418},
    {"SELECT domaine,conc FROM Sdspagedomain", 5},
    {"SELECT kit,protein,mw FROM Sdspagekits", 25},
    {"SELECT produit,conc,qte FROM Sdspagestain", 51},
    {"SELECT produit,conc,qte FROM Sdspagestock", 47},
    {"SELECT nom, a, b, c, d, e FROM Sdspagegels", 78},
    {"SELECT nom, formule, ks FROM Solubilite", 159},
    {"SELECT eq, kf FROM Complexes", 89},
    {"SELECT nom, a,b,c,d,e,f,g,h,i,j FROM Masse", 200},
    {"SELECT ref, journal FROM RMNref", 31},
    {"SELECT motif3, groupe FROM IRgraphe", 0},
    {"SELECT group, molec, wave FROM IRvalues", 0},
    {"SELECT couleur, coef1, coef2, coef3, mult, tol, temp, col FROM Resistancescouleurs", 0},
    {"SELECT E3, E6, E12, E24, E48, E96, E192 FROM Resistancesnormalisees", 0},
    {"SELECT code, valeur FROM Resistancescms", 0},
    {"SELECT orga FROM Reaction", 0},
}};

const Step &at(int step)
{
    Q_ASSERT(step >= TableCatalog::FirstStep && step <= TableCatalog::LastStep);
    return Steps[size_t(step - TableCatalog::FirstStep)];
}

SelectStatement parsed(int step)
{
    return SelectStatement::parse(TableCatalog::statement(step)).value();
}

} // namespace

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

std::optional<int> TableCatalog::rowCount(int step)
{
    const int rows = at(step).rows;
    return rows == 0 ? std::nullopt : std::optional(rows);
}
