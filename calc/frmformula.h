#pragma once

#include "calc/molarmass.h"
#include "widgets/sidewindow.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

/// The molar mass and composition of a formula, while it is typed.
class frmFormula final : public SideWindow
{
    Q_OBJECT

public:
    /// @p field is what the mass can be put into, "M1"; empty if there is none.
    frmFormula(AtomicMasses masses, const QString &field, QWidget &form1);

Q_SIGNALS:
    /// The user wants the mass in that field; the window is about to close.
    void massChosen(const QString &mass);

private:
    void buildAnswer(QLayout &column);
    QLayout *buildButtons(const QString &field);
    void weigh(const QString &typed);
    void show(const Formula &formula, const MolarMass &mass);
    void refuse(const QString &typed, const FormulaError &error);

    const AtomicMasses m_masses;
    const QSet<QString> m_elements;
    const bool m_hasField;

    QLineEdit *txtFormula;
    QLabel *lblMass;
    QLabel *lblHill;
    QLabel *lblError;
    QTreeWidget *lstShares;
    QPushButton *cmdCopy;
    QPushButton *cmdPutM;
};
