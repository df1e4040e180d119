#pragma once

#include "calc/unitconverter.h"
#include "widgets/tabstrip.h"
#include "widgets/textboxm.h"

#include <QListWidget>

class Desktop;
struct Module1;

/// The unit conversions: `TextBoxM1` in the unit of one list, `TextBoxM2` in that of the other.
class ConversionBox final : public QWidget
{
    Q_OBJECT

public:
    ConversionBox(const Module1 &module, Desktop &desktop, QWidget *parent);

    /// Empties the input and sets the result to "0"; the selected units stay.
    void reset();

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildLists();
    void buildList(int number, const QStringList &names, int start);
    void clickTab(int tab);
    void showLists(int tab);
    void scrollToUnits();
    void convert();
    void clickList(int number);
    QListWidget &list(int number) const { return *m_lists[size_t(number - 1)]; }

    const Module1 &m_module;
    Desktop &m_desktop;
    UnitConverter m_converter;

    TabStrip *TabStrip3;
    TextBoxM *TextBoxM1;
    TextBoxM *TextBoxM2;
    std::array<QListWidget *, 16> m_lists{}; ///< `List1` to `List16`
};
