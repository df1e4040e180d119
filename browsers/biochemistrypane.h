#pragma once

#include "browsers/browserpane.h"

class Desktop;
class GeneticCodeSection;
struct DataStore;
struct Module1;

/// `frmbioch`: biomolecules, the recipes of SDS-PAGE and the genetic code.
class BiochemistryPane final : public BrowserPane
{
    Q_OBJECT

public:
    BiochemistryPane(Module1 &module, DataStore &store, Desktop &desktop, QWidget *parent);

    TableRow currentRow() const override;

protected:
    void buildContents() override;
    void applyChoice() override;

private:
    struct Section;

    void buildBiomolecules();
    void buildSdsPage();
    RowListView &addList(const Section &section, int index, const QList<ListColumn> &columns);
    void addTitles(const Section &section, const QString &frame, int index, int firstLabel);
    QFrame *makeOptionFrame(const QString &name, const Section &section);
    void showBiomolecules(int tab);
    void showSdsPage(int tab);
    void openStructure(int row);

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    GeneticCodeSection *m_code = nullptr;
    QTabBar *TabStrip8 = nullptr;
    QTabBar *TabStrip9 = nullptr;
    QFrame *grdFrame15 = nullptr;
    QFrame *grdFrame26 = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"};
    std::map<int, TitleFrame *> m_titles; ///< by the index of their list
    ControlArray<QRadioButton> Option4{"Option4"};
    ControlArray<QRadioButton> Option5{"Option5"};
    ControlArray<QLabel> Label2{"Label2"};
};
