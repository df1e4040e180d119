#pragma once

#include "widgets/sidewindow.h"

#include <QStringList>
#include <functional>

class Desktop;
class QCheckBox;
class QLabel;
struct Module1;

/// The tip of the day: one random tip of the tip file. Opens only at start.
///
/// OK writes its box to the options file; closing in any other way keeps the change for this run only.
class frmTip final : public SideWindow
{
    Q_OBJECT

public:
    /// @p setCheck1 sets the box "Tip of the day" of the options dialog. The constructor checks the window's
    /// own box and so calls @p setCheck1 once. RuntimeError if the tip file cannot be read.
    frmTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1);

    /// Reads the tips and shows one. False if there is no file at @p path.
    bool LoadTips(const QString &path);

    void DisplayCurrentTip();

    /// OK: writes the options. A failure ends the program with the run-time error report.
    void accept() override;

private:
    void buildWindow();
    QLayout *buildButtons();
    void nextTip();
    void storeChoice(bool wanted);

    Module1 &m_module1;
    Desktop &m_desktop;
    const std::function<void(bool)> m_setCheck1;
    QStringList m_tips;
    int m_current = 0; ///< from 1; 0 before the first tip

    QLabel *lblTipText;
    QCheckBox *chkLoadTipsAtStartup;
};

/// Opens the tip of the day above @p form1, unless the user's settings turn tips off.
void openTip(Module1 &module1, Desktop &desktop, std::function<void(bool)> setCheck1, QWidget &form1);
