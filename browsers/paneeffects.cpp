#include "browsers/paneeffects.h"

namespace {

// The upper edge of the titles of the indicators, twips: below the option buttons, or up in their place.
constexpr int BelowOptions = 840;
constexpr int InPlaceOfOptions = 630;

/// What a tab of `TabStrip8` has for itself. The lists and titles of the other tabs are hidden.
struct SdsPageTab
{
    QStringList controls;
    QStringList options;  ///< the buttons on show
    QString first;        ///< the button that decides which of two lists is on top; may be empty
    QStringList ifFirst;  ///< what is shown if it is on, and hidden otherwise
    QStringList ifSecond; ///< the reverse
};

const QList<SdsPageTab> &sdsPageTabs()
{
    static const QList<SdsPageTab> table{
        {{"ListView3(17)", "grdFrame21"}, {}, {}, {}, {}},
        {{"ListView3(18)", "grdFrame22"}, {}, {}, {}, {}},
        {{"ListView3(21)", "grdFrame24"}, {}, {}, {}, {}},
        {{"grdFrame25", "grdFrame26"},
         {"Option4(8)", "Option4(9)"},
         "Option4(8)",
         {"ListView3(22)"},
         {"ListView3(23)", "grdFrame27"}},
        {{"grdFrame23"}, {"Option4(6)", "Option4(7)"}, "Option4(7)", {"ListView3(19)"}, {"ListView3(20)"}},
    };
    return table;
}

Effects sdsPageEffects(int number)
{
    const SdsPageTab &own = sdsPageTabs()[number - 1];
    Effect always{.shown = own.controls + own.options, .hidden = {}};
    for (const SdsPageTab &tab : sdsPageTabs()) {
        if (&tab != &own)
            always.hidden << tab.controls << tab.options << tab.ifFirst << tab.ifSecond;
    }
    if (own.first.isEmpty())
        return {always};
    return {always,
            {.ifOn = own.first, .shown = own.ifFirst, .hidden = own.ifSecond},
            {.ifOff = own.first, .shown = own.ifSecond, .hidden = own.ifFirst}};
}

} // namespace

const EffectTable &PaneEffects::Option4()
{
    static const EffectTable table{
        {0, {{.shown = {"ListView3(2)"}, .hidden = {"ListView3(3)"}}}},
        {1, {{.shown = {"ListView3(3)"}, .hidden = {"ListView3(2)"}}}},
        {2, {{.shown = {"ListView3(0)"}, .hidden = {"ListView3(1)"}}}},
        {3, {{.shown = {"ListView3(1)"}, .hidden = {"ListView3(0)"}}}},
        {4, {{.shown = {"ListView3(7)"}, .hidden = {"ListView3(8)"}}}},
        {5, {{.shown = {"ListView3(8)"}, .hidden = {"ListView3(7)"}}}},
        {6, {{.shown = {"ListView3(20)"}, .hidden = {"ListView3(19)"}}}},
        {7, {{.shown = {"ListView3(19)"}, .hidden = {"ListView3(20)"}}}},
        {8, {{.shown = {"ListView3(22)"}, .hidden = {"ListView3(23)", "grdFrame27"}}}},
        {9, {{.shown = {"ListView3(23)", "grdFrame27"}, .hidden = {"ListView3(22)"}}}},
    };
    return table;
}

// The acid and base lists stay as they are beneath: the list of red-ox couples covers them.
const EffectTable &PaneEffects::TabStrip2()
{
    static const EffectTable table{
        {1, {{.shown = {"Option4(0)", "Option4(1)"}, .hidden = {"ListView3(4)", "grdFrame4"}}}},
        {2, {{.shown = {"ListView3(4)", "grdFrame4"}, .hidden = {"Option4(0)", "Option4(1)"}}}},
    };
    return table;
}

const EffectTable &PaneEffects::TabStrip7()
{
    static const EffectTable table{
        {1,
         {{.shown = {"Option4(2)", "Option4(3)"},
           .hidden = {"ListView3(6)"},
           .tops = {{"grdFrame1", BelowOptions}},
           .captions = {{"Label2(40)", "Colors"}}}}},
        {2,
         {{.shown = {"ListView3(6)"},
           .hidden = {"Option4(2)", "Option4(3)"},
           .tops = {{"grdFrame1", InPlaceOfOptions}},
           .captions = {{"Label2(40)", "Fluorescence"}}}}},
    };
    return table;
}

const EffectTable &PaneEffects::TabStrip10()
{
    static const EffectTable table{
        {1, {{.shown = {"ListView3(24)", "grdFrame29"}, .hidden = {"ListView3(25)", "grdFrame28"}}}},
        {2, {{.shown = {"ListView3(25)", "grdFrame28"}, .hidden = {"ListView3(24)", "grdFrame29"}}}},
    };
    return table;
}

// The amino acids and their two buttons stay beneath the other tabs, where the pane finds the choice again.
const EffectTable &PaneEffects::TabStrip9()
{
    static const EffectTable table{
        {1,
         {{.shown = {"Option5(0)", "Option5(1)"},
           .hidden = {"ListView3(11)", "ListView3(13)", "ListView3(14)", "ListView3(12)", "grdFrame13",
                      "grdFrame12", "grdFrame3", "grdFrame15"}},
          {.ifOff = "Option5(0)", .shown = {"grdFrame11"}}}},
        {2,
         {{.shown = {"grdFrame12", "grdFrame15"},
           .hidden = {"grdFrame11", "ListView3(12)", "grdFrame3", "ListView3(14)", "grdFrame13"}},
          {.ifOn = "Option5(3)", .shown = {"ListView3(13)"}},
          {.ifOff = "Option5(3)", .shown = {"ListView3(11)"}}}},
        {3,
         {{.shown = {"ListView3(14)", "grdFrame13"},
           .hidden = {"ListView3(11)", "ListView3(13)", "ListView3(12)", "grdFrame11", "grdFrame12",
                      "grdFrame15", "grdFrame3", "Option5(0)", "Option5(1)"}}}},
        {4,
         {{.shown = {"ListView3(12)", "grdFrame3"},
           .hidden = {"ListView3(11)", "ListView3(13)", "ListView3(14)", "grdFrame11", "grdFrame12",
                      "grdFrame15", "grdFrame13", "Option5(0)", "Option5(1)"}}}},
    };
    return table;
}

// The titles of the synthetic amino acids lie over those of the natural ones: hiding them uncovers those.
const EffectTable &PaneEffects::Option5()
{
    static const EffectTable table{
        {0, {{.shown = {"ListView3(9)"}, .hidden = {"ListView3(10)", "grdFrame11"}}}},
        {1, {{.shown = {"ListView3(10)", "grdFrame11"}, .hidden = {"ListView3(9)"}}}},
        {2, {{.shown = {"ListView3(11)"}, .hidden = {"ListView3(13)"}}}},
        {3, {{.shown = {"ListView3(13)"}, .hidden = {"ListView3(11)"}}}},
    };
    return table;
}

const EffectTable &PaneEffects::TabStrip8()
{
    static const EffectTable table = [] {
        EffectTable effects;
        for (int number = 1; number <= sdsPageTabs().size(); ++number)
            effects[number] = sdsPageEffects(number);
        return effects;
    }();
    return table;
}
