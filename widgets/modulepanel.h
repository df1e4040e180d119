#pragma once

#include "store/tablerow.h"

#include <QWidget>

/// One of the twelve panes of `Form1`, shown one at a time.
///
/// A pane's controls are built when it is first shown or first asked for, which keeps the start short. What a
/// pane knows without its controls (lists, selected rows, texts) lives in plain types beside it.
class ModulePanel : public QWidget
{
    Q_OBJECT

public:
    /// The pane area, the same for all panes: 14400 x 8100 twips.
    static constexpr QSize Size{960, 540};

    /// The largest font, up to @p desktop's, that the places on the panes have room for: they are as fixed as
    /// the size.
    static QFont fittingFont(QFont desktop);

    /// @p name is the frame's name in the system, "frmsolv". The pane starts hidden.
    ModulePanel(const char *name, QWidget *parent);

    void setVisible(bool visible) override;

    /// Makes sure that the controls exist. Whoever touches them from outside calls it first.
    void build();

    /// The control for the keyboard when the pane is opened. Null for no one in particular.
    virtual QWidget *firstFocus() const { return nullptr; }

    /// The row whose values the pane shows outside of a list. No table if there is none.
    virtual TableRow currentRow() const { return {}; }

    bool isBuilt() const { return m_built; }

protected:
    /// Makes all controls; called once.
    virtual void buildContents() {}

private:
    bool m_built = false;
};
