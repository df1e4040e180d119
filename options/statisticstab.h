#pragma once

#include "widgets/controlarray.h"

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;
struct DataStore;
struct Module1;

/// `frmstat`: disk space of the program, and the number of records loaded, a page for each module.
class StatisticsTab final : public QWidget
{
    Q_OBJECT

public:
    StatisticsTab(const DataStore &store, const Module1 &module, QWidget *parent);

    /// Shows the sizes of folders and files. RuntimeError 53 or 76 if one does not exist.
    void load();

private:
    QLayout *buildCounts(const DataStore &store);
    void showPage(int shown);

    const Module1 &m_module;
    QComboBox *Combo1;
    ControlArray<QLabel> Label7{"Label7"};
    QLabel *Label26;
    QLabel *Label27;
    QLabel *Label28;
    QLabel *Label29;
    QList<QList<QLabel *>> m_pages; ///< captions and values of each page
};
