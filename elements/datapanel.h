#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>

class ElementPanel;

/// `ReyFrame1`: the fifteen values of the element shown, each with its name and unit.
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
    void addValue(int index, const QRect &place, const QString &caption = {});
    void fit(QLabel &label, double size) const;

    QLabel *m_note; ///< hidden until there are values
};

/// `ReyFrame2`: up to five radioactive isotopes, a row each. Its height follows their number.
class IsotopePanel final : public QFrame
{
    Q_OBJECT

public:
    explicit IsotopePanel(QWidget *parent);

    void showValues(const ElementPanel &panel);

    ControlArray<QLabel> Label11{"Label11"};
};
