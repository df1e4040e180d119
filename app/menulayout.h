#pragma once

#include <QList>
#include <QString>

/// The tree of menus and the tool bars, as the layout file tells them.
struct MenuLayout
{
    /// A command's place. Id 0 is a separator. A tool bar names commands by id only.
    struct Entry
    {
        int id = 0;
        QString caption;
        QString shortCaption; ///< for a tool bar; empty where the caption serves
        QString shortcut;     ///< portable form, "Ctrl+F"
        QString icon;         ///< name of a drawn icon
    };

    struct Menu
    {
        QString caption; ///< of a menu; a tool bar's name
        QList<Entry> entries;
    };

    QList<Menu> menus;
    QList<Menu> toolBars;

    /// RuntimeError 53 or 75 for a file that cannot be read, 321 with line number for one that is no layout.
    static MenuLayout read(const QString &path);
};
