#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QTreeWidget;
class QUrl;

/// `frmHelpPages`: the pages of the help, with contents, index and search.
///
/// Unlike the other small windows it does not disable the main window. Deleted when closed.
class HelpPages final : public QWidget
{
    Q_OBJECT

public:
    HelpPages();

    /// Shows @p page, a file name.
    void open(const QString &page);

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *buildContents();
    QWidget *buildIndex();
    QWidget *buildSearch();
    QWidget *buildPage();
    QListWidget *makeList(const QString &name, const QString &accessibleName, QLineEdit &field);
    void takeColours();
    void markInContents(const QUrl &page);

    QTextBrowser *m_page;
    QTreeWidget *m_contents;
    QLineEdit *m_words;
};
