#pragma once

#include <QLabel>

/// The panel of the status bar with short notes on what the user has just done, also for screen readers.
class StatusLine final : public QLabel
{
    Q_OBJECT

public:
    /// @p window is the main window.
    StatusLine(const QString &name, QWidget &window);

    /// Shows @p note in the main window of @p from until the next; an empty note clears it.
    static void show(QWidget &from, const QString &note);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
