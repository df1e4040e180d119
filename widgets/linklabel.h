#pragma once

#include <QLabel>

/// A plain-text link, pressed by a click, Enter or Space. Its text can be selected; Ctrl+C copies the
/// selection, or else all of it.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(const QString &text, const QString &target, QWidget *parent);

    void press() { Q_EMIT clicked(m_target); }

Q_SIGNALS:
    void clicked(const QString &target);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    const QString m_target;
};
