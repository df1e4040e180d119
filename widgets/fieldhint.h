#pragma once

#include <QLabel>
#include <QTimer>

/// A short hint below a field. It looks like a tool tip, but stays some seconds while the mouse moves: the
/// user's eyes may be on the keyboard.
class FieldHint final : public QLabel
{
    Q_OBJECT

public:
    explicit FieldHint(QWidget &field);

    /// For screen readers too.
    void showText(const QString &text);

private:
    QWidget &m_field;
    QTimer m_time;
};
