#pragma once

#include "charts/nmrcharts.h"
#include "charts/spectroscopymodes.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QImage>
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
/// Charts are picture files, loaded when their row is clicked. A missing one ends the program with the
/// run-time error report. Positions are twips.
class SpectroscopyPane final : public ModulePanel
{
    Q_OBJECT

public:
    SpectroscopyPane(Module1 &module1, DataStore &store, Desktop &desktop, QWidget *parent);

    /// Where `Comboana` stands, from 0.
    int mode() const;

    /// Selects the entry of `Comboana` and runs its handler, also if it stands there already.
    void selectMode(int mode);

    /// By its own setting, whether or not the pane is on show.
    bool isListView3_27Shown() const;

    /// This pane's part of what every pane switch clears: picture, title, scale and scroll bar.
    void ClearChartPanels();

    /// Gives or takes the help balloon of `Command1`, by the option. In every mode it is that of the NMR
    /// charts, until the next choice of a mode.
    void refreshToolTips();

    /// Moves the quantity and the unit of the infrared scale to their places, by the option "IR graduation".
    void placeIrLabels();

    /// Puts the infrared scale on show, by the option, if the list of its charts is shown; otherwise only
    /// places and captions change. A chart need not be on show.
    void applyIrGraduation();

Q_SIGNALS:
    void modeChanged();

    /// `Command1` was pressed: with the infrared charts the colour code of the bonds is wanted (`Formhelp3`),
    /// with the NMR charts the abbreviations of the references (`Formhelp2`).
    void colourCodeRequested();
    void referencesRequested();

protected:
    void buildContents() override;

private:
    void buildSelector();
    void buildLists();
    RowListView &addChartList(int index, const QString &accessibleName);
    void buildChart();
    void buildScales();
    void buildIrTable();
    void buildHiddenControls();
    void connectControls();

    void changeMode();
    void applyMode(SpectroscopyMode mode);
    void showNmrChart(const NmrCharts &charts, int row);
    void showIrChart(int row);
    void showBands();
    void loadChart(const QString &file);
    void setScrollRange();
    void scroll(int value);
    void captionIrScale();
    void showIrScale();
    QWidget &control(const char *name) const;

    Module1 &m_module1;
    DataStore &m_store;
    Desktop &m_desktop;

    QString ChartKey;       ///< names the picture file of the chart last chosen
    int m_bandsWanted = -1; ///< row of ListView3(5) whose bands the table has not shown yet

    DropDown *Comboana = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"}; ///< 5, 15, 16, 27
    ControlArray<QLabel> Label2{"Label2"};            ///< titles of the lists
    ControlArray<QFrame> grdFrame17{"grdFrame17"};
    ControlArray<QFrame> Shape2{"Shape2"};
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
