#pragma once

#include "search/find.h"
#include "widgets/controlarray.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

class Desktop;
class RowListView;
struct DataStore;

/// The bar on the status line that searches the list on show. On the Elements pane it is a pick list of
/// names.
///
/// It starts closed. Every pane switch closes it. Enter in the search text is Next, Shift+Enter is Previous,
/// Escape closes.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p panel3 is the panel of the status bar that holds the prompt while the bar is open.
    FindBar(DataStore &store, Desktop &desktop, QLabel &panel3, QWidget *parent);

    /// The lists that can be searched, from their pane once it has them. The first that is on is searched,
    /// by its own setting.
    void setSearchedLists(RowListView *ListView1, RowListView *ListView3_26);

    /// Opens the bar, as pick list if the Elements pane is on show.
    void open(bool elementsOnShow);

    /// Closes the bar and forgets text and hits. The hidden boxes `Text1` and `Text2` keep what they hold,
    /// unless the text changes by it.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A list that can be searched and the rows behind it.
    struct Searched
    {
        RowListView *view;
        const RowList *rows;
        bool enablesNext; ///< also on a click on `case1`
    };

    void buildControls();
    void connectControls();
    std::optional<Searched> searchedList() const;
    void searchTextChanged();
    void caseClicked();
    void gather(const Searched &searched, bool enableNext);
    void walk(Find::Direction direction);
    void walkFromText(Find::Direction direction);
    void closeByUser();

    DataStore &m_store;
    Desktop &m_desktop;
    QLabel &m_panel3;
    RowListView *m_ListView1 = nullptr;
    RowListView *m_ListView3_26 = nullptr;
    int SearchHit = 1; ///< ordinal of the hit being worked on
    int SearchRow = 1; ///< row of the visible list being tested
};
