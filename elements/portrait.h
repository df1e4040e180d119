#pragma once

#include <QWidget>

/// `Picture1`: a plate in memory of the inventor of the periodic table, in place of a portrait.
class Portrait final : public QWidget
{
    Q_OBJECT

public:
    explicit Portrait(QWidget *parent);

    /// Name and life dates.
    static QString inscription();

protected:
    void paintEvent(QPaintEvent *event) override;
};
