#pragma once

#include "charts/nmrcharts.h"
#include "charts/spectroscopymodes.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QLabel>

class ChartPicture;
class ChartViewport;
class Desktop;
class DropDown;
class PictureBox;
class QFrame;
class QLineEdit;
class QPushButton;
class QScrollBar;
class ScaleLabel;
struct DataStore;
struct Module1;

/// `frmana`: charts of NMR shifts and infrared bands, and the table of infrared bands, by the mode in
/// `Comboana`.
///
/// A click on a row loads its picture file. A missing file ends the program with the run-time error report.
class SpectroscopyPane final : public ModulePanel
{
    Q_OBJECT

public:
    SpectroscopyPane(Module1 &module1, DataStore &store, Desktop &desktop, QWidget *parent);

    /// The selected entry of `Comboana`, from 0.
    int mode() const;

    /// Selects the entry of `Comboana` and runs its handler, even if it is already selected.
    void selectMode(int mode);

    /// The list's own setting, whether or not the pane is shown.
    bool isListView3_27Shown() const;

    /// Clears picture, title, scale and scroll bar, at every pane switch.
    void ClearChartPanels();

    /// Places the quantity and the unit of the infrared scale, by the option "IR graduation".
    void placeIrLabels();

    /// Updates the infrared scale, by the option, and shows it if the list of infrared charts is shown.
    void applyIrGraduation();

Q_SIGNALS:
    void modeChanged();

    /// `Command1` was pressed with the infrared charts (`Formhelp3`) or the NMR charts (`Formhelp2`).
    void colourCodeRequested();
    void referencesRequested();

protected:
    void buildContents() override;

private:
    void buildSelector();
    void buildLists();
    RowListView &addChartList(int index);
    void buildChart();
    void buildScales();
    void buildIrTable();
    void buildHiddenControls();
    void connectControls();

    void changeMode();
    void applyMode(SpectroscopyMode mode);
    void showControls(SpectroscopyMode mode);
    void showNmrChart(const NmrCharts &charts, int row);
    void showIrChart(int row);
    void showBands();
    void setScrollRange();
    void scroll(int value);
    void captionIrScale();
    void showIrScale();

    Module1 &m_module1;
    DataStore &m_store;
    Desktop &m_desktop;

    int m_pendingBandsRow = -1; ///< row of ListView3(5) whose bands the table has not shown yet

    DropDown *Comboana = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"}; ///< 5, 15, 16, 27
    ControlArray<QLabel> Label2{"Label2"};            ///< titles of the lists
    ControlArray<QFrame> grdFrame17{"grdFrame17"};
    ControlArray<QFrame> Shape2{"Shape2"};
    QWidget *frmirb = nullptr;
    QLabel *m_credit = nullptr; ///< `Label19(25)`
    PictureBox *SourceImage = nullptr;
    ChartViewport *grdFrame19 = nullptr;
    ChartPicture *Picture3 = nullptr;
    QScrollBar *VScroll10 = nullptr;
    QLabel *Label20 = nullptr;
    ScaleLabel *Label24 = nullptr;
    ScaleLabel *Label27 = nullptr;
    QLabel *Label25 = nullptr;
    QLabel *Label26 = nullptr;
    QLineEdit *Text3 = nullptr;
    QPushButton *Command1 = nullptr;
};
