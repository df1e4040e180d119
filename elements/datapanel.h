#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>

class ElementPanel;

/// `ReyFrame1`: the fifteen values of the element on show, each with its name and unit.
class DataPanel final : public QFrame
{
    Q_OBJECT

public:
    explicit DataPanel(QWidget *parent);

    void showValues(const ElementPanel &panel);

    ControlArray<QLabel> lblatome{"lblatome"};

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void buildHeading();
    void buildRows();
    void addValue(int index, QLabel *value);
    void fit(QLabel &label, double size) const;

    QList<QLabel *> m_notes; ///< come with the values
};

/// `ReyFrame2`: up to five radioactive isotopes, a row each. Its height follows their number. It is empty
/// until it has something to show.
class IsotopePanel final : public QFrame
{
    Q_OBJECT

public:
    explicit IsotopePanel(QWidget *parent);

    void showValues(const ElementPanel &panel);

    ControlArray<QLabel> Label11{"Label11"};

private:
    void build();
    void buildTitles();
    void buildRow(int row);
};
