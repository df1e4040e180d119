#include "options/exporttab.h"

#include "options/optioncontrols.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <span>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Heading, Check1, Check2, Check1Fixed, Check2Fixed, Option1 };

struct Entry
{
    Kind kind;
    int index;
    const char *caption;
};

// From top to bottom; a heading begins a group.
constexpr Entry FirstColumn[]{
    {Kind::Heading, 10, "Mode"},
    {Kind::Option1, 1, "Co&lors"},
    {Kind::Option1, 0, "Gra&yscale"},
    {Kind::Heading, 7, "Solvents"},
    {Kind::Check2Fixed, 11, " Properties"},
    {Kind::Check2, 0, " Str&uctures"},
    {Kind::Check2Fixed, 10, " Miscibility - Polarity"},
    {Kind::Check2, 2, " &Relative polarities"},
    {Kind::Check2Fixed, 13, " NMR"},
    {Kind::Check2Fixed, 15, " Mass spec."},
    {Kind::Check2Fixed, 12, " Cooling mixtures"},
    {Kind::Check2Fixed, 9, " Drying"},
};

constexpr Entry SecondColumn[]{
    {Kind::Heading, 5, "Solutions"},
    {Kind::Check2Fixed, 4, " Couples"},
    {Kind::Check2Fixed, 6, " Constants"},
    {Kind::Check2Fixed, 5, " Colored indicators"},
    {Kind::Check2, 7, " &Fluorochroms"},
    {Kind::Heading, 6, "Elements"},
    {Kind::Check2Fixed, 14, " Elements"},
    {Kind::Check2, 3, " &Pictures"},
    {Kind::Check2, 1, " Radioactive &isotopes"},
};

constexpr Entry ThirdColumn[]{
    {Kind::Heading, 8, "Biochemistry"},     {Kind::Check2Fixed, 8, " Biomolecules"},
    {Kind::Check1, 0, " Ge&netic code"},    {Kind::Check1, 9, " SDS-P&AGE"},
    {Kind::Heading, 2, "Calculs"},          {Kind::Check2Fixed, 16, " SI units and der."},
    {Kind::Check1Fixed, 10, " Constants"},  {Kind::Heading, 3, "Spectrocopy"},
    {Kind::Check2Fixed, 17, " IR (Table)"},
};

constexpr std::array<std::span<const Entry>, 3> Columns{FirstColumn, SecondColumn, ThirdColumn};

constexpr int GroupSpacing = 14; // logical pixels

QWidget *makeControl(const Entry &entry, OptionControls &controls, QWidget *parent)
{
    if (entry.kind == Kind::Heading)
        return Controls::heading(Controls::indexedName("Label1", entry.index), entry.caption, parent);
    if (entry.kind == Kind::Option1)
        return &controls.Option1.add(entry.index, new QRadioButton(entry.caption, parent));
    auto *box = new QCheckBox(entry.caption, parent);
    if (entry.kind == Kind::Check1Fixed || entry.kind == Kind::Check2Fixed) {
        box->setChecked(true);
        box->setEnabled(false);
    }
    const bool first = entry.kind == Kind::Check1 || entry.kind == Kind::Check1Fixed;
    return &(first ? controls.Check1 : controls.Check2).add(entry.index, box);
}

} // namespace

QWidget *makeExportTab(OptionControls &controls, QWidget *parent)
{
    auto *frmexport = Controls::named(new QWidget(parent), u"frmexport"_s);
    auto *columns = new QHBoxLayout(frmexport);
    for (const std::span<const Entry> column : Columns) {
        auto *rows = new QVBoxLayout;
        columns->addLayout(rows, 1);
        for (const Entry &entry : column) {
            if (entry.kind == Kind::Heading && rows->count() > 0)
                rows->addSpacing(GroupSpacing);
            rows->addWidget(makeControl(entry, controls, frmexport));
        }
        rows->addStretch();
    }
    return frmexport;
}
