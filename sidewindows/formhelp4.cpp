#include "sidewindows/formhelp4.h"

#include "sidewindows/colourmnemonic.h"
#include "widgets/controls.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Formhelp4::Formhelp4(QWidget &form1) : SideWindow("Formhelp4", form1)
{
    setWindowTitle(QStringLiteral("Form3")); // its design caption, which nobody ever changed
    auto *cmdOK = Controls::named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    auto *column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setSpacing(8);
    column->addWidget(Controls::heading(QStringLiteral("Label3"), QStringLiteral("Mnemonic:"), this));
    column->addWidget(Controls::named(new ColourMnemonic(this), QStringLiteral("Image3")));
    column->addWidget(cmdOK, 0, Qt::AlignRight);
}

void openMnemonic(QWidget &form1)
{
    (new Formhelp4(form1))->showAboveOwner();
}
