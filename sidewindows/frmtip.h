#pragma once

#include "widgets/sidewindow.h"

#include <QStringList>
#include <functional>

class Desktop;
class QCheckBox;
class QLabel;
struct Module1;

/// The tip of the day: one tip of the tip file at a time, drawn at random. It opens at start only.
///
/// "OK" is the only way that a change of its box reaches the options file; closing in any other way leaves it
/// in the slot for this run.
class frmTip final : public SideWindow
{
    Q_OBJECT

public:
    /// @p setCheck1 sets the box "Tip of the day" of the options dialog. Making the window is its load, which
    /// ticks its own box and so runs @p setCheck1 once. RuntimeError where the tip file cannot be read.
    frmTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1);

    /// Reads the tips and draws the first; false, and nothing changes, where there is no file at @p path.
    bool LoadTips(const QString &path);

    void DisplayCurrentTip();

    /// "OK": writes the options. If that fails, the program ends with the run-time error report.
    void accept() override;

private:
    void buildWindow();
    QLayout *buildButtons();
    void nextTip();
    void storeWish(bool wanted);

    Module1 &m_module1;
    Desktop &m_desktop;
    const std::function<void(bool)> m_setCheck1;
    QStringList m_tips;
    int m_current = 0; ///< from 1; 0 before the first is drawn

    QLabel *lblTipText;
    QCheckBox *chkLoadTipsAtStartup;
};

/// Opens the tip of the day above @p form1, unless the user's settings turn tips off: then nothing happens.
void openTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1);
