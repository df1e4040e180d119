#pragma once

#include <QLabel>

/// The panel of the status bar for short notes on what the user has just done, for eyes and for screen
/// readers.
class StatusLine final : public QLabel
{
    Q_OBJECT

public:
    /// @p window is the main window.
    StatusLine(const QString &name, QWidget &window);

    /// Shows @p note in the main window of @p from, until the next one; an empty note takes it away.
    static void show(QWidget &from, const QString &note);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
