#pragma once

#include "calc/calctabs.h"
#include "widgets/controlarray.h"
#include "widgets/tabstrip.h"
#include "widgets/textboxm.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <optional>

class Desktop;
class QBoxLayout;
struct Module1;

/// The solution calculators: `TabStrip4` above one set of fields, of which each tab shows a part. Keeps no
/// numbers: a click on "Calculate" reads the texts of the fields.
class SolverBox final : public QWidget
{
    Q_OBJECT

public:
    SolverBox(const Module1 &module, Desktop &desktop, QWidget *parent);

    void empty(FieldSet fields);

    /// What of the tab takes a molar mass: "M", "M1"; the first empty one of two. Empty if nothing does.
    QString massField() const;
    void putMass(const QString &mass);

Q_SIGNALS:
    void molarMassWanted();
    void stockWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildFields(QBoxLayout &line);
    void buildLiquids(QBoxLayout &line);
    void buildButtons(QBoxLayout &line);
    QBoxLayout *makeFoot();

    void clickTab(int tab);
    void showTab(int number);
    void calculate();
    void watch(Field changed);
    void write(const Change &change);
    void placeDelta();
    void showPlainAnswer();
    std::optional<Field> fieldForMass() const;
    const CalcTab &tab() const;

    FieldTexts texts() const;
    std::optional<double> vaporisationEntropy() const;

    const Module1 &m_module;
    Desktop &m_desktop;

    TabStrip *TabStrip4;
    ControlArray<QLabel> lbln{"lbln"}; ///< 0 the delta, 3 the formula around it
    ControlArray<QLabel> lbl2{"lbl2"};
    ControlArray<TextBoxM> TextBoxM7{"TextBoxM7"};
    ControlArray<QRadioButton> Option10{"Option10"};
    ControlArray<QPushButton> Command8{"Command8"};
    std::array<TextBoxM *, CalcFields::FieldCount> m_fields{};
    QLabel *m_liquidHeading = nullptr;
    QLabel *lblPlain = nullptr;
};
