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

private:
    QWidget *makeBlock(const QPoint &place, const QString &headingName, const QString &heading);
    RowListView &addList(int index, const QList<ListColumn> &columns, int titleTop, QWidget *block);
    void addOptions(const QList<QPair<int, QString>> &captions, QWidget *block);
    void addWavelength(int index, int title);
    void buildCouples();
    void buildConstants();
    void buildIndicators();
    void buildFluorochromes();

    DataStore &m_store;
    ControlArray<RowListView> ListView3{"ListView3"};
    ControlArray<QRadioButton> Option4{"Option4"};
    ControlArray<QLabel> Label2{"Label2"};
};
