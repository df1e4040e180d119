#pragma once

#include "search/searcheverything.h"
#include "widgets/sidewindow.h"

#include <memory>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// "Search everything": one field, answers while typing.
///
/// Down goes from the field to the answers; what is typed there goes on in the field. Enter or a double click
/// chooses an answer and closes the window.
class frmSearch final : public SideWindow
{
    Q_OBJECT

public:
    frmSearch(std::shared_ptr<const SearchEverything> search, const QString &text, QWidget &form1);

Q_SIGNALS:
    /// After the window has closed.
    void chosen(const Place &place);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildList();
    void showAnswers(const QString &text);
    void choose(QTreeWidgetItem *item);
    void showWhole(const QTreeWidgetItem *item);

    const std::shared_ptr<const SearchEverything> m_search;
    QList<SearchAnswer> m_answers; ///< in the order of the list
    QLineEdit *txtSearch;
    QLabel *lblUnderstood;
    QTreeWidget *lstSearch;
    QLabel *lblAnswer; ///< values of the current answer, which may be cut in the list
};
