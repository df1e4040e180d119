#include "browsers/solventtabs.h"

namespace {

constexpr int OnTheTab = 480;
constexpr int Parked = 1000;
constexpr int NmrTab = 3;

struct Contents
{
    SolventTabs::Tab tab;
    QStringList controls; ///< beside the list of the nucleus
};

QString listOf(SolventTabs::Nucleus nucleus)
{
    return nucleus == SolventTabs::Proton ? QStringLiteral("ListView4") : QStringLiteral("ListView5");
}

const QList<Contents> &contents()
{
    static const QList<Contents> table{
        {{"Properties", true}, {"frmc", "ListView1"}},
        {{"Miscibility and Polarity", false}, {"frmm", "ListView6", "framepola"}},
        {{"NMR", false}, {"frmrmn1"}},
        {{"Mass spectrometry", true}, {"grdFrame30", "ListView3(26)"}},
        {{"Drying", false}, {"frmdess", "ListView8"}},
        {{"Cooling mixtures", false}, {"frmcool", "ListView9"}},
    };
    return table;
}

} // namespace

const QList<SolventTabs::Tab> &SolventTabs::all()
{
    static const QList<Tab> tabs = [] {
        QList<Tab> list;
        for (const Contents &each : contents())
            list << each.tab;
        return list;
    }();
    return tabs;
}

Effects SolventTabs::change(int number, Nucleus NmrNucleus)
{
    Effect effect;
    for (int tab = 1; tab <= contents().size(); ++tab)
        (tab == number ? effect.shown : effect.hidden) << contents()[tab - 1].controls;
    effect.hidden << listOf(Proton) << listOf(Carbon);
    if (number == NmrTab) {
        effect.hidden.removeOne(listOf(NmrNucleus));
        effect.shown << listOf(NmrNucleus);
    }
    const int top = number == NmrTab ? OnTheTab : Parked;
    effect.tops = {{"Option1", top}, {"Option2", top}};
    return {effect};
}

Effects SolventTabs::choose(Nucleus nucleus)
{
    const Effect proton{.shown = {"ListView4", "frmrmn1", "Label2(19)", "Label2(20)"},
                        .hidden = {"ListView5", "Label2(30)"}};
    const Effect carbon{.shown = {"ListView5", "frmrmn1", "Label2(30)"},
                        .hidden = {"ListView4", "Label2(19)", "Label2(20)"}};
    return {nucleus == Proton ? proton : carbon};
}
