#pragma once

#include <QLabel>

/// A legend whose entries stand in one text, two or more blanks apart, drawn one below the other.
///
/// The text of the label is the whole legend. Two columns with the same number of entries stand line by line.
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
