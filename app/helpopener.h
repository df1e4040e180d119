#pragma once

#include <QObject>
#include <QPointer>

class Desktop;
class HelpPages;
class QAction;
struct Module1;

/// Opens the help, in the desktop's viewer or in a window of the program.
class HelpOpener final : public QObject
{
    Q_OBJECT

public:
    /// @p ownPages opens the program's own window.
    HelpOpener(const Module1 &module, Desktop &desktop, const QAction &ownPages);

    /// Opens the help file with the desktop's viewer. Without one, or if that is unknown, shows the same
    /// pages in the program's own window.
    void open();

    /// Shows the program's own window, with page @p number in the order of the book.
    void openPage(int number);

private:
    void showPages();

    const Module1 &m_module;
    Desktop &m_desktop;
    QPointer<HelpPages> m_pages;
};
