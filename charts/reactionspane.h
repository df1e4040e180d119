#pragma once

#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QLabel>
#include <QRadioButton>

class ChartPicture;
class Desktop;
class LaterTables;
class PictureBox;
class QScrollBar;
struct DataStore;
struct Module1;

/// `frmrea`: the equation or the mechanism of the reaction picked in a list, a picture file named by the row.
///
/// A missing file ends the program with the run-time error report, and so does a release of the mouse on one
/// of the two views while no reaction is selected. The list has no rows until the user has its table read;
/// until then the views are disabled. As soon as it has rows the first one is selected.
class ReactionsPane final : public ModulePanel
{
    Q_OBJECT

public:
    ReactionsPane(const Module1 &module1, DataStore &store, LaterTables &tables, Desktop &desktop,
                  QWidget *parent);

    /// This pane's part of what every pane switch clears: picture and name.
    void ClearChartPanels();

protected:
    void buildContents() override;

private:
    enum View { Equation = 1, Mechanism = 2 };

    void buildList();
    void buildViews();
    void buildPicture();
    void buildIdleControls();
    void takeRows();

    void chooseRow(int row);
    void changeView();
    void showReaction(int row);
    void setScrollRange();

    const Module1 &m_module1;
    DataStore &m_store;
    LaterTables &m_tables;
    Desktop &m_desktop;

    int ChartKey = 0; ///< one-based position of the row on show

    ControlArray<RowListView> ListView3{"ListView3"}; ///< 31
    ControlArray<QLabel> Label2{"Label2"};
    ControlArray<QRadioButton> optorga{"optorga"}; ///< by View
    QLabel *Label55 = nullptr;
    QWidget *grdFrame35 = nullptr;
    ChartPicture *Picture4 = nullptr;
    PictureBox *SourceImage2 = nullptr;
    QScrollBar *VScroll1 = nullptr;
};
