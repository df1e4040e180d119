#pragma once

#include <QObject>
#include <QPointer>

class Desktop;
class HelpPages;
class QAction;
struct Module1;

/// The help: in the viewer that the desktop has for it, or in a window of the program.
class HelpOpener final : public QObject
{
    Q_OBJECT

public:
    /// @p ownPages is the menu entry for the window of the program.
    HelpOpener(const Module1 &module, Desktop &desktop, const QAction &ownPages);

    /// Hands the help file to the desktop. Where that has no viewer, or does not say, shows the same pages
    /// in the program's own window.
    void open();

private:
    void showPages();

    const Module1 &m_module;
    Desktop &m_desktop;
    QPointer<HelpPages> m_pages;
};
