#pragma once

#include <QLabel>
#include <QTimer>

/// A short hint below a field. It looks like a tool tip and takes no focus, but it stays some seconds
/// wherever the mouse goes, for the eyes that were on the keyboard.
class FieldHint final : public QLabel
{
    Q_OBJECT

public:
    explicit FieldHint(QWidget &field);

    /// Shows @p text at the field, to screen readers too.
    void showText(const QString &text);

private:
    QWidget &m_field;
    QTimer m_time;
};
