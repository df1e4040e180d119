#pragma once

#include <QPushButton>

/// One cell of the periodic table: black on white on every desktop, with a mark around the element shown.
/// Leaves arrow keys to its parent.
class ElementButton final : public QPushButton
{
    Q_OBJECT

public:
    ElementButton(const QString &symbol, QWidget *parent);

    void setMarked(bool marked);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool m_marked = false;
};
