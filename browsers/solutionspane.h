#pragma once

#include "browsers/browserpane.h"

struct DataStore;

/// `frmsolution`: couples, constants, indicators and fluorochromes, four blocks side by side.
class SolutionsPane final : public BrowserPane
{
    Q_OBJECT

public:
    SolutionsPane(DataStore &store, QWidget *parent);

protected:
    void buildContents() override;
    void applyChoice() override;

private:
    QWidget *makeBlock(const QPoint &place, const QString &headingName, const QString &heading);
    QTabBar *addTabs(const QString &name, const QStringList &captions, QWidget *block);
    RowListView &addList(int index, const QList<ListColumn> &columns, int titleTop, QWidget *block);
    TitleFrame *addTitles(const QString &name, const RowListView &list, const QList<int> &labels);
    void addWavelength(int index, int title);
    void buildCouples();
    void buildConstants();
    void buildIndicators();
    void buildFluorochromes();

    DataStore &m_store;
    QTabBar *TabStrip2 = nullptr;
    QTabBar *TabStrip7 = nullptr;
    QTabBar *TabStrip10 = nullptr;
    TitleFrame *grdFrame1 = nullptr;
    TitleFrame *grdFrame4 = nullptr;
    TitleFrame *grdFrame28 = nullptr;
    TitleFrame *grdFrame29 = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"};
    ControlArray<QRadioButton> Option4{"Option4"};
    ControlArray<QLabel> Label2{"Label2"};
};
