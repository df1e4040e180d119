#include "sidewindows/formhelp3.h"

#include "widgets/controls.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

namespace {

struct Bond
{
    int index; ///< of `Label2`; 3 is the heading
    const char *partner;
    QRgb colour; ///< that of the bars in the chart pictures
};

constexpr std::array Bonds{
    Bond{0, "Oxygen (O)", 0xFFFF0000},
    Bond{1, "Bromine (Br)", 0xFF0000C0},
    Bond{2, "Hydrogen (H),  Carbon (C)", 0xFF008000},
    Bond{4, "Phosphorous (P), Iodine (I)", 0xFFC000C0},
    Bond{5, "Sulfur (S), Fluorine (F)", 0xFFC0C000},
    Bond{6, "Nitrogen (N)", 0xFF0000FF},
    Bond{7, "Others", 0xFF808080},
    Bond{8, "Chlorine (Cl)", 0xFF00C0C0},
};

void paint(QWidget &widget, QPalette::ColorRole role, const QColor &colour)
{
    QPalette palette = widget.palette();
    palette.setColor(role, colour);
    widget.setPalette(palette);
}

/// As in the charts: the light colours are hard to tell from the text alone, a bar shows them.
QWidget *bar(QRgb colour, QWidget *parent)
{
    auto *bar = new QWidget(parent);
    bar->setFixedSize(36, 10);
    bar->setAutoFillBackground(true);
    paint(*bar, QPalette::Window, colour);
    return bar;
}

/// White on a dark desktop too, like the charts: the colours are made for it.
QFrame *whiteSheet(QWidget *parent)
{
    auto *sheet = new QFrame(parent);
    sheet->setFrameShape(QFrame::StyledPanel);
    sheet->setAutoFillBackground(true);
    paint(*sheet, QPalette::Window, Qt::white);
    auto *grid = new QGridLayout(sheet);
    grid->setContentsMargins(16, 12, 24, 12);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(8);
    int row = 0;
    for (const Bond &bond : Bonds) {
        QLabel *label = Controls::heading(Controls::indexedName("Label2", bond.index),
                                          QLatin1StringView(bond.partner), sheet);
        paint(*label, QPalette::WindowText, bond.colour);
        grid->addWidget(bar(bond.colour, sheet), row, 0);
        grid->addWidget(label, row, 1);
        ++row;
    }
    return sheet;
}

} // namespace

Formhelp3::Formhelp3(QWidget &form1) : SideWindow("Formhelp3", form1)
{
    setWindowTitle(QStringLiteral("Code couleur"));
    auto *cmdOK = Controls::named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    auto *column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setSpacing(8);
    column->addWidget(Controls::heading(QStringLiteral("Label3"), QStringLiteral("Color code"), this));
    column->addWidget(Controls::label(QStringLiteral("Label2(3)"),
                                      QStringLiteral("Bond between Carbon (C) or Hydrogen (H) and:"), this));
    column->addWidget(whiteSheet(this));
    column->addWidget(cmdOK, 0, Qt::AlignRight);
}

void openColourCode(QWidget &form1)
{
    (new Formhelp3(form1))->showAboveOwner();
}
