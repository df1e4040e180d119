#pragma once

#include <QWidget>

/// `Image8`: the standard genetic code as a table, the first letter of the codon at the left, the second
/// above, the third at the right. Amino acids with the same name stand in one field.
class GeneticCodeChart final : public QWidget
{
    Q_OBJECT

public:
    explicit GeneticCodeChart(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintLetters(QPainter &painter) const;
    void paintBox(QPainter &painter, int first, int second) const;

    QRectF cell(double firstAndThird, int second, double height) const;
};
