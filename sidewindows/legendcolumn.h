#pragma once

#include <QLabel>

/// A legend in one text: its entries, separated by two or more blanks, are drawn one per line. Columns with
/// the same number of entries align line by line.
class LegendColumn final : public QLabel
{
    Q_OBJECT

public:
    /// Height of an entry, logical pixels.
    static constexpr int LineHeight = 22;

    LegendColumn(const QString &text, QWidget *parent);

    QStringList entries() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};
