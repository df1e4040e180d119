#pragma once

#include "search/find.h"
#include "widgets/controlarray.h"

#include <QPushButton>

class Desktop;
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
/// It starts closed, and every pane switch closes it. From anywhere in the window F3 is Next, Shift+F3
/// Previous and Escape closes; Enter and Shift+Enter walk from the search text.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p panel3 of the status bar shows the prompt while the bar is open.
    FindBar(DataStore &store, Desktop &desktop, QLabel &panel3, QWidget *parent);

    /// The lists that can be searched. The first that is not hidden is searched. Their pane calls this when
    /// it has built them.
    void setSearchedLists(RowListView *ListView1, RowListView *ListView3_26);

    /// Opens the bar; on the Elements pane as a pick list, dropped down. The text of an open bar is selected.
    void open(bool elementsOnShow);

    /// Closes the bar and forgets text and hits. The hidden boxes `Text1` and `Text2` only change with the
    /// text.
    void ResetSearchPanel();

    /// Empties the bar and leaves it open.
    void ClearFindText();

    /// Open for a text.
    bool isSearching() const;

    /// Open as a pick list, with a name picked.
    bool isPickInUse() const;

    /// Room for a whole name; in a narrow window the search text shrinks.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// After the user closed the bar.
    void closedByUser();

    /// The user picked an element, perhaps the same again.
    void namePicked(const QString &name);

protected:
    /// Keys of the pick list: letters search the dropped-down list, and Escape there closes the bar.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Searched
    {
        RowListView *view;
        const RowList *rows;
        bool enablesNext; ///< also when `case1` is clicked
    };

    void buildControls();
    void connectControls();
    void addShortcuts();
    std::optional<Searched> searchedList() const;
    void searchTextChanged();
    void caseClicked();
    void gather(const Searched &searched, bool enableNext);
    void resetPosition();
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
};
