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

/// `frmrea`: the equation or the mechanism of the reaction selected in a list, from a picture file.
///
/// A missing file ends the program with the run-time error report, and so does a mouse release on a view
/// without a selected reaction. Until the user has the table read, the list is empty and the views are
/// disabled; after that the first row is selected.
class ReactionsPane final : public ModulePanel
{
    Q_OBJECT

public:
    ReactionsPane(const Module1 &module1, DataStore &store, LaterTables &tables, Desktop &desktop,
                  QWidget *parent);

    /// Clears picture and name, at every pane switch.
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

    ControlArray<RowListView> ListView3{"ListView3"}; ///< 31
    ControlArray<QLabel> Label2{"Label2"};
    ControlArray<QRadioButton> optorga{"optorga"}; ///< by View
    QLabel *Label55 = nullptr;
    ChartPicture *Picture4 = nullptr;
    PictureBox *SourceImage2 = nullptr;
    QScrollBar *VScroll1 = nullptr;
};
