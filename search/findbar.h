#pragma once

#include "core/controlarray.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

struct DataStore;

/// The bar on the status line that searches the list on show. On the Elements pane it is a pick list of
/// names.
///
/// It starts closed. Every pane switch closes it.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p panel3 is the panel of the status bar that holds the prompt while the bar is open.
    FindBar(DataStore &store, QLabel &panel3, QWidget *parent);

    /// Closes the bar and forgets text and hits. The hidden boxes `Text1` and `Text2` keep what they hold.
    void ResetSearchPanel();

    /// Empties the bar and leaves it open.
    void ClearFindText();

    QToolButton *Picture2;
    QLineEdit *TextBoxM6;
    QCheckBox *case1;
    ControlArray<QPushButton> Command11{"Command11"}; ///< 0 Previous, 1 Next
    QComboBox *Combo2_3;                              ///< "Combo2(3)", the names of the elements
    QLineEdit *Text1;                                 ///< hidden: ordinal of the current hit
    QLineEdit *Text2;                                 ///< hidden: row of the current hit, from 1

Q_SIGNALS:
    /// The close button was pressed; the bar is closed already.
    void closedByUser();

private:
    void buildControls();

    DataStore &m_store;
    QLabel &m_panel3;
    int SearchHit = 1; ///< ordinal of the hit being worked on
    int SearchRow = 1; ///< row of the visible list being tested
};
