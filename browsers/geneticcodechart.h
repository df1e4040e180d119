#pragma once

#include <QWidget>

/// `Image8`: the standard genetic code as a table. Neighbours with the same amino acid share one field.
class GeneticCodeChart final : public QWidget
{
    Q_OBJECT

public:
    explicit GeneticCodeChart(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
