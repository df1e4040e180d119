#pragma once

#include "store/tablerow.h"

#include <QWidget>

/// One of the twelve panes of `Form1`, shown one at a time.
///
/// Its controls are built when it is first shown or used: all twelve at once would delay the start.
class ModulePanel : public QWidget
{
    Q_OBJECT

public:
    /// The pane area, the same for all panes: 14400 x 8100 twips.
    static constexpr QSize Size{960, 540};

    /// The largest font, up to @p desktop's, that fits the fixed places on the panes.
    static QFont fittingFont(QFont desktop);

    /// @p name is the frame's name, "frmsolv". The pane starts hidden.
    ModulePanel(const char *name, QWidget *parent);

    void setVisible(bool visible) override;

    /// Builds the controls if they are not built. Call it before you use them from outside.
    void build();

    /// The control that takes the focus when the pane is opened. Null for the first of the Tab order.
    virtual QWidget *firstFocus() const { return nullptr; }

    /// The row whose values the pane shows outside of a list. No table if there is none.
    virtual TableRow currentRow() const { return {}; }

    bool isBuilt() const { return m_built; }

protected:
    /// Called once.
    virtual void buildContents() {}

private:
    bool m_built = false;
};
