#include "calc/frmformula.h"

#include "core/numbers.h"
#include "widgets/controls.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 420;
constexpr int RowsShown = 6;

} // namespace

frmFormula::frmFormula(AtomicMasses masses, const QString &field, QWidget &form1)
    : SideWindow("frmFormula", form1), m_masses(std::move(masses)),
      m_elements(m_masses.keyBegin(), m_masses.keyEnd()), m_hasField(!field.isEmpty())
{
    setWindowTitle(u"Molar mass"_s);
    txtFormula = Controls::named(new QLineEdit(this), u"txtFormula"_s);
    txtFormula->setMinimumWidth(Width);
    txtFormula->setPlaceholderText(u"C6H12O6·H2O, K4[Fe(CN)6]*3H2O, SO4 2-, CDCl3, tBuOH"_s);
    QLabel *caption = Controls::label({}, u"&Formula:"_s, this);
    caption->setBuddy(txtFormula);

    auto *column = new QVBoxLayout(this);
    column->addWidget(caption);
    column->addWidget(txtFormula);
    buildAnswer(*column);
    column->addLayout(buildButtons(field));
    connect(txtFormula, &QLineEdit::textChanged, this, &frmFormula::weigh);
    weigh({});
}

void frmFormula::buildAnswer(QLayout &column)
{
    lblMass = Controls::heading(u"lblMass"_s, {}, this);
    QFont large = lblMass->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    lblMass->setFont(large);
    lblMass->setFixedHeight(QFontMetrics(large).lineSpacing());
    lblHill = Controls::label(u"lblHill"_s, {}, this);
    lblError = Controls::label(u"lblError"_s, {}, this);
    for (QLabel *label : {lblMass, lblHill, lblError}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        column.addWidget(label);
    }
    lstShares = Controls::named(new QTreeWidget(this), u"lstShares"_s);
    lstShares->setAccessibleName(u"Composition"_s);
    lstShares->setHeaderLabels({u"Element"_s, u"Atoms"_s, u"Mass (%)"_s});
    lstShares->setRootIsDecorated(false);
    lstShares->header()->setStretchLastSection(false);
    lstShares->headerItem()->setTextAlignment(1, Qt::AlignRight);
    lstShares->headerItem()->setTextAlignment(2, Qt::AlignRight);
    lstShares->setFixedHeight(lstShares->header()->sizeHint().height() +
                              RowsShown * (lstShares->fontMetrics().lineSpacing() + 4));
    column.addWidget(lstShares);
}

QLayout *frmFormula::buildButtons(const QString &field)
{
    cmdCopy = Controls::named(new QPushButton(u"&Copy the mass"_s, this), u"cmdCopy"_s);
    cmdPutM = Controls::named(new QPushButton(u"&Put into %1"_s.arg(m_hasField ? field : u"M"_s), this),
                              u"cmdPutM"_s);
    cmdPutM->setToolTip(m_hasField
                            ? QString()
                            : u"For the tabs \"Amount of substance\" and \"Massic / molar fraction\" of "
                              u"Calculations"_s);
    cmdPutM->setDefault(m_hasField);
    auto *close = Controls::named(new QPushButton(u"C&lose"_s, this), u"cmdClose"_s);
    connect(cmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(lblMass->text().section(u' ', 0, 0)); });
    connect(cmdPutM, &QPushButton::clicked, this, [this] {
        const QString mass = lblMass->text().section(u' ', 0, 0);
        accept(); // first: a disabled main window gives no field the focus
        Q_EMIT massChosen(mass);
    });
    connect(close, &QPushButton::clicked, this, &frmFormula::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(cmdCopy);
    row->addStretch();
    row->addWidget(cmdPutM);
    row->addWidget(close);
    return row;
}

void frmFormula::weigh(const QString &typed)
{
    lblMass->clear();
    lblHill->clear();
    lblError->clear();
    lstShares->clear();
    const auto parsed = Formula::parse(typed, m_elements);
    const auto *formula = std::get_if<Formula>(&parsed);
    if (formula)
        show(*formula, MolarMass::of(*formula, m_masses));
    else if (!typed.trimmed().isEmpty())
        refuse(typed, std::get<FormulaError>(parsed));
    cmdCopy->setEnabled(formula);
    cmdPutM->setEnabled(formula && m_hasField);
}

void frmFormula::show(const Formula &formula, const MolarMass &mass)
{
    lblMass->setText(mass.text() + u" g/mol"_s);
    QString hill = u"Hill formula: "_s + formula.hill();
    if (formula.charge != 0)
        hill += u", charge %1%2"_s.arg(std::abs(formula.charge)).arg(formula.charge > 0 ? u'+' : u'−');
    for (const QString &group : formula.groups)
        hill += u", %1 is %2"_s.arg(group, FormulaGroups::formula(group));
    lblHill->setText(hill);
    for (const MassShare &share : mass.shares) {
        auto *row = new QTreeWidgetItem(
            lstShares, {share.symbol, Numbers::formatLocal(share.count),
                        QString::number(share.percent, 'f', 2).replace(u'.', Numbers::decimalPoint())});
        row->setTextAlignment(1, Qt::AlignRight);
        row->setTextAlignment(2, Qt::AlignRight);
    }
}

void frmFormula::refuse(const QString &typed, const FormulaError &error)
{
    const QString before = typed.first(error.position);
    const QString place = before.trimmed().isEmpty() ? u"At the start"_s : u"After \"%1\""_s.arg(before);
    lblError->setText(place + u": "_s + error.reason);
    lblError->setAccessibleName(lblError->text());
}
