#pragma once

#include <QLabel>

/// A printed scale of the infrared charts, `Label24` or `Label27`: the marks in its text, one every 500 cm-1
/// from 4000 cm-1, each centred over its tick on the chart. The number of blanks between them does not
/// matter.
class ScaleLabel final : public QLabel
{
    Q_OBJECT

public:
    /// @p chartLeft is the left edge of the chart, in pixels from the left of the label.
    ScaleLabel(const QString &name, const QString &text, int chartLeft, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const int m_chartLeft;
};
