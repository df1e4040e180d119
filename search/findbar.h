#pragma once

#include "search/find.h"
#include "widgets/controlarray.h"

#include <QPushButton>

class Desktop;
class OptionSlots;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;
class RowListView;
struct DataStore;

/// The bar on the status line that searches the list on screen. On the Elements pane it is a pick list of
/// names.
///
/// It starts closed. Every pane switch closes it. F3 is Next, Shift+F3 Previous and Escape closes, wherever
/// in the window the focus is; Enter and Shift+Enter in the search text walk like F3 and Shift+F3.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p panel3 is the panel of the status bar for the prompt while the bar is open.
    FindBar(DataStore &store, Desktop &desktop, QLabel &panel3, QWidget *parent);

    /// The lists that can be searched, from their pane once it has them. The first that is on is searched,
    /// by its own setting.
    void setSearchedLists(RowListView *ListView1, RowListView *ListView3_26);

    /// Opens the bar, as opened pick list if the Elements pane is on screen. What was typed into an open bar
    /// is selected.
    void open(bool elementsOnShow);

    /// Closes the bar and forgets text and hits. The hidden boxes `Text1` and `Text2` keep what they hold,
    /// unless the text changes by it.
    void ResetSearchPanel();

    /// Empties the bar and leaves it open.
    void ClearFindText();

    /// Whether the bar is open for a text.
    bool isSearching() const;

    /// Whether the bar is open as pick list and a name is picked.
    bool isPickInUse() const;

    /// With room for a whole name. In a narrow window the search text gives way.
    QSize sizeHint() const override;

    /// Gives or takes the help balloon of the close button, by the option.
    void refreshToolTip(const OptionSlots &slots);

Q_SIGNALS:
    /// The user closed the bar; it is closed already.
    void closedByUser();

    /// An element was picked by hand, perhaps the same again.
    void namePicked(const QString &name);

protected:
    /// Of the pick list and its rows: what is typed searches the opened list, and Escape there closes the
    /// bar.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A list that can be searched and its rows.
    struct Searched
    {
        RowListView *view;
        const RowList *rows;
        bool enablesNext; ///< also on a click on `case1`
    };

    void buildControls();
    void connectControls();
    void addShortcuts();
    std::optional<Searched> searchedList() const;
    void searchTextChanged();
    void caseClicked();
    void gather(const Searched &searched, bool enableNext);
    void walk(Find::Direction direction);
    void walkByKey(Find::Direction direction);
    void sayWhetherFound();
    void closeByUser();

    DataStore &m_store;
    Desktop &m_desktop;
    QLabel &m_panel3;
    RowListView *m_ListView1 = nullptr;
    RowListView *m_ListView3_26 = nullptr;
    QToolButton *Picture2;
    QLineEdit *TextBoxM6;
    QCheckBox *case1;
    ControlArray<QPushButton> Command11{"Command11"}; ///< 0 Previous, 1 Next
    QComboBox *Combo2_3;                              ///< "Combo2(3)", the names of the elements
    QLineEdit *Text1;                                 ///< hidden: ordinal of the current hit
    QLineEdit *Text2;                                 ///< hidden: row of the current hit, from 1
    int SearchHit = 1;                                ///< ordinal of the hit being worked on
    int SearchRow = 1;                                ///< row of the visible list being tested
};
