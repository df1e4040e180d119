#pragma once

#include "calc/stock.h"
#include "widgets/sidewindow.h"

class QComboBox;
class QFormLayout;
class QLabel;
class TextBoxM;

/// How much of the bottle goes into a solution, and what a given amount of it makes.
///
/// It answers while figures are typed. What is not a positive number has no answer.
class frmStock final : public SideWindow
{
    Q_OBJECT

public:
    frmStock(QList<StockReagent> reagents, QWidget &form1);

private:
    TextBoxM *makeNumber(const QString &name);
    void buildBottle(QFormLayout &form);
    void buildWish(QFormLayout &form);
    void buildOffer(QFormLayout &form);

    void chooseReagent(int row);
    void answer();
    void answerWish(const Stock &stock);
    void answerOffer(const Stock &stock);
    double volume() const; ///< mL

    const QList<StockReagent> m_reagents;

    QComboBox *cmbReagent;
    TextBoxM *txtPercent;
    TextBoxM *txtDensity;
    TextBoxM *txtMolarMass;
    QLabel *lblMolarity;
    QLabel *lblSafety;
    TextBoxM *txtConcentration;
    QComboBox *cmbConcentration;
    TextBoxM *txtVolume;
    QComboBox *cmbVolume;
    QLabel *lblStockVolume;
    QLabel *lblStockMass;
    QLabel *lblWarning;
    TextBoxM *txtTaken;
    QLabel *lblMade;
};
