#pragma once

#include <QWidget>

/// A picture: the ten colours of the digits 0 to 9 on resistors (IEC 60062), each with a word that begins
/// with the letter of the colour. The words make up a sentence.
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
