#pragma once

#include <QWidget>

class Desktop;
class QLabel;
class QProgressBar;

/// The splash window: what the program is, and how far the load has come.
class frmload final : public QWidget
{
    Q_OBJECT

public:
    frmload();

    /// Shows the window and lets it paint: 0.05 second, the only wait of the start.
    void showAndPause(Desktop &desktop);

    /// Five further, and the percentage in the caption.
    void ProgressTick();

    /// The bar's design value is 100, until the load knows its 37 ticks.
    void setMaximum(int maximum);

private:
    QLabel *addLine(const char *name, const QString &text, int top, int height);

    QProgressBar *m_progressBar;
};

/// Percentage of a progress bar in single precision, rounded half to even.
int progressPercent(int value, int maximum);
