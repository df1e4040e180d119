#pragma once

#include <QWidget>

class Desktop;
class QLabel;
class QProgressBar;

/// The splash window: the program's name and the progress of the load.
class frmload final : public QWidget
{
    Q_OBJECT

public:
    frmload();

    /// Shows the window and lets it paint for 0.05 seconds, the only wait of the start.
    void showAndPause(Desktop &desktop);

    /// Adds five and shows the percentage in the caption.
    void ProgressTick();

    /// 100 at first.
    void setMaximum(int maximum);

private:
    QLabel *addLine(const char *name, const QString &text, int top, int height);

    QProgressBar *m_progressBar;
};

/// In single precision, rounded half to even.
int progressPercent(int value, int maximum);
