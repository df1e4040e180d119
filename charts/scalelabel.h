#pragma once

#include <QLabel>

/// A printed scale of the infrared charts, `Label24` or `Label27`: the marks in its text stand 500 cm-1
/// apart, the first over 4000 cm-1, each centred over its tick on the chart. The blanks between them only
/// separate.
class ScaleLabel final : public QLabel
{
    Q_OBJECT

public:
    /// @p chartLeft is where the chart's picture begins, in pixels from the left of the label.
    ScaleLabel(const QString &name, const QString &text, int chartLeft, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const int m_chartLeft;
};
