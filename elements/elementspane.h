#pragma once

#include "elements/elementpanel.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"

class DataPanel;
class Desktop;
class FindBar;
class IsotopePanel;
class PeriodicTable;
class PictureBox;
class Portrait;
class QPushButton;
class QToolButton;
struct DataStore;

/// `Frametable`: the periodic table with the data, the isotopes and the picture of the selected element.
///
/// Elements are chosen by a click, by the arrow buttons or arrow keys, and by name in the Find bar.
class ElementsPane final : public ModulePanel
{
    Q_OBJECT

public:
    ElementsPane(Module1 &module1, DataStore &store, Desktop &desktop, FindBar &findBar, QWidget *parent);

    ElementPanel &panel() { return m_panel; }

    /// The button of the selected element.
    QWidget *firstFocus() const override;

    TableRow currentRow() const override;

    /// As a click on the element's button.
    void select(int element);

    /// The pointer over the element's picture, by the option "Zoom-in on the element picture".
    void refreshZoomPointer();

    /// Picture or portrait, after a change of the option "Picture of elements".
    void applyPictureOption();

Q_SIGNALS:
    /// `cmdhelp` was pressed.
    void helpRequested();

protected:
    void buildContents() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildPictures();
    void buildArrows();
    void buildButtons();
    void connectControls();

    void move(Direction direction);
    void focusElement(int element);
    void pick(const QString &name);
    void takeOverPick();
    void zoom();
    void showCrystal();
    void showPanel();
    void showVisibility();

    Module1 &m_module1;
    const MemoryTables &m_tables;
    Desktop &m_desktop;
    FindBar &m_findBar;
    ElementPanel m_panel;

    PeriodicTable *m_table = nullptr;
    DataPanel *ReyFrame1 = nullptr;
    IsotopePanel *ReyFrame2 = nullptr;
    PictureBox *imgato = nullptr;
    Portrait *Picture1 = nullptr;
    ControlArray<QToolButton> cmdpre{"cmdpre"}; ///< by Direction
    QPushButton *Command9 = nullptr;
    QPushButton *cmdhelp = nullptr;
};
