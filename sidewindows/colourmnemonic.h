#pragma once

#include <QWidget>

/// A picture: the colours of the digits 0 to 9 on resistors (IEC 60062), each with a word that has the same
/// initial. The words make a sentence.
class ColourMnemonic final : public QWidget
{
    Q_OBJECT

public:
    explicit ColourMnemonic(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintLine(QPainter &painter, int digit) const;
};
