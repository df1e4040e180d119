#pragma once

#include "electronics/resistorcode.h"
#include "widgets/controlarray.h"
#include "widgets/dropdown.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"
#include "widgets/textboxm.h"

#include <QLabel>
#include <QTabBar>

class Desktop;
class LaterTables;
class ResistorView;
class TablesNotice;
struct DataStore;

/// `frmelec`: the colour code of resistors, the standard series of values and the EIA-96 code, in three tabs.
/// The lists are empty until the user has their tables read.
class ElectronicsPane final : public ModulePanel
{
    Q_OBJECT

public:
    ElectronicsPane(DataStore &store, LaterTables &tables, Desktop &desktop, QWidget *parent);

    /// That of the marking, or of the first ring that has a colour.
    TableRow currentRow() const override;

Q_SIGNALS:
    /// `Command2` was pressed (`Formhelp4`).
    void mnemonicRequested();

protected:
    void buildContents() override;
    void changeEvent(QEvent *event) override;

private:
    void buildColourCode();
    void buildRings();
    void buildResults();
    void buildSeries();
    void buildEia96();
    void buildMarking();
    QLabel *addLabel18(int index, const QString &text, const QRect &place, QWidget *parent);
    DropDown *addList(int index, const QString &accessibleName, const QRect &place, QWidget *parent);
    void addResult(int index, const QString &title, int unitIndex, const QString &unit, const QPoint &place,
                   QWidget *parent);
    void connectControls();

    void emptyChoices();
    void showTab(int index);
    void changeRingCount();
    void markRings();
    void mark(QLabel &label, bool active, QPalette::ColorRole activeRole);
    void chooseRing(const ResistorCode::Ring &ring);
    void showResult();
    void decodeMarking();

    DataStore &m_store;
    LaterTables &m_tables;
    Desktop &m_desktop;
    ResistorCode m_code;

    QTabBar *TabStrip11 = nullptr;
    QFrame *frmgen = nullptr;
    QFrame *grdFrame32 = nullptr;
    QFrame *frmcms = nullptr;
    DropDown *Combo3 = nullptr;
    DropDown *Combo4 = nullptr;
    ControlArray<DropDown> Combo2{"Combo2"}; ///< 4 to 9 by ring; 10 the letters of EIA-96
    ControlArray<QLabel> Label18{"Label18"};
    ControlArray<QLabel> Label2{"Label2"};            ///< titles of the lists
    ControlArray<QLabel> lbl2{"lbl2"};                ///< 18 to 21: units
    ControlArray<TextBoxM> tbm{"tbm"};                ///< 7 to 10: results
    ControlArray<RowListView> ListView3{"ListView3"}; ///< 28, 29
    ResistorView *m_resistor = nullptr;
    TablesNotice *m_notice = nullptr;
};
