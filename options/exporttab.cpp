#include "options/exporttab.h"

#include "options/optioncontrols.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <span>

namespace {

enum class Kind { Check1, Check2, Check1Fixed, Check2Fixed, Option1 };

struct Entry
{
    Kind kind;
    int index;
    const char *caption;
};

struct Group
{
    int label; ///< 10 for "Label1(10)"
    const char *heading;
    int column;
    std::span<const Entry> entries;
};

constexpr std::array Mode{
    Entry{Kind::Option1, 1, "Co&lors"},
    Entry{Kind::Option1, 0, "Gra&yscale"},
};

constexpr std::array Solvents{
    Entry{Kind::Check2Fixed, 11, " Properties"},
    Entry{Kind::Check2, 0, " Str&uctures"},
    Entry{Kind::Check2Fixed, 10, " Miscibility - Polarity"},
    Entry{Kind::Check2, 2, " &Relative polarities"},
    Entry{Kind::Check2Fixed, 13, " NMR"},
    Entry{Kind::Check2Fixed, 15, " Mass spec."},
    Entry{Kind::Check2Fixed, 12, " Cooling mixtures"},
    Entry{Kind::Check2Fixed, 9, " Drying"},
};

constexpr std::array Solutions{
    Entry{Kind::Check2Fixed, 4, " Couples"},
    Entry{Kind::Check2Fixed, 6, " Constants"},
    Entry{Kind::Check2Fixed, 5, " Colored indicators"},
    Entry{Kind::Check2, 7, " &Fluorochroms"},
};

constexpr std::array Elements{
    Entry{Kind::Check2Fixed, 14, " Elements"},
    Entry{Kind::Check2, 3, " &Pictures"},
    Entry{Kind::Check2, 1, " Radioactive &isotopes"},
};

constexpr std::array Biochemistry{
    Entry{Kind::Check2Fixed, 8, " Biomolecules"},
    Entry{Kind::Check1, 0, " Ge&netic code"},
    Entry{Kind::Check1, 9, " SDS-P&AGE"},
};

constexpr std::array Calculations{
    Entry{Kind::Check2Fixed, 16, " SI units and der."},
    Entry{Kind::Check1Fixed, 10, " Constants"},
};

constexpr std::array Spectroscopy{
    Entry{Kind::Check2Fixed, 17, " IR (Table)"},
};

constexpr std::array Groups{
    Group{10, "Mode", 0, Mode},
    Group{7, "Solvents", 0, Solvents},
    Group{5, "Solutions", 1, Solutions},
    Group{6, "Elements", 1, Elements},
    Group{8, "Biochemistry", 2, Biochemistry},
    Group{2, "Calculs", 2, Calculations},
    Group{3, "Spectrocopy", 2, Spectroscopy},
};

constexpr int ColumnCount = 3;
constexpr int GroupSpacing = 14; // logical pixels

QWidget *makeControl(const Entry &entry, OptionControls &controls, QWidget *parent)
{
    const QString caption = QString::fromLatin1(entry.caption);
    if (entry.kind == Kind::Option1)
        return &controls.Option1.add(entry.index, new QRadioButton(caption, parent));
    auto *box = new QCheckBox(caption, parent);
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
    auto *frmexport = Controls::named(new QWidget(parent), QStringLiteral("frmexport"));
    auto *columns = new QHBoxLayout(frmexport);
    std::array<QVBoxLayout *, ColumnCount> column{};
    for (QVBoxLayout *&rows : column) {
        rows = new QVBoxLayout;
        columns->addLayout(rows, 1);
    }
    for (const Group &group : Groups) {
        QVBoxLayout &rows = *column[size_t(group.column)];
        if (rows.count() > 0)
            rows.addSpacing(GroupSpacing);
        rows.addWidget(Controls::heading(Controls::indexedName("Label1", group.label),
                                         QString::fromLatin1(group.heading), frmexport));
        for (const Entry &entry : group.entries)
            rows.addWidget(makeControl(entry, controls, frmexport));
    }
    for (QVBoxLayout *rows : column)
        rows->addStretch();
    return frmexport;
}
