#include "app/helpopener.h"

#include "core/desktop.h"
#include "core/module1.h"
#include "sidewindows/helpbook.h"
#include "sidewindows/helppages.h"

#include <QAction>

using namespace Qt::StringLiterals;

HelpOpener::HelpOpener(const Module1 &module, Desktop &desktop, const QAction &ownPages)
    : m_module(module), m_desktop(desktop)
{
    connect(&ownPages, &QAction::triggered, this, &HelpOpener::showPages);
}

void HelpOpener::open()
{
    const QString file = m_module.shippedFile(u"alembra_help_uk.chm"_s);
    const Desktop::Viewer viewer = m_desktop.viewerOf(file);
    if (viewer != Desktop::Viewer::None)
        m_desktop.openTarget(file);
    if (viewer != Desktop::Viewer::Known)
        showPages();
}

void HelpOpener::openPage(int number)
{
    showPages();
    m_pages->open(HelpBook::contents().value(number).page);
}

void HelpOpener::showPages()
{
    if (!m_pages)
        m_pages = new HelpPages;
    m_pages->setWindowState(m_pages->windowState() & ~Qt::WindowMinimized);
    m_pages->show();
    m_pages->raise();
    m_pages->activateWindow();
}
