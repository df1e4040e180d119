#pragma once

#include <QList>
#include <QString>

/// Menus and tool bars, as in the layout file.
struct MenuLayout
{
    /// A command; id 0 is a separator. Entries of a tool bar have an id only.
    struct Entry
    {
        int id = 0;
        QString caption;
        QString shortCaption; ///< for tool bars; empty for the caption
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

    /// RuntimeError 53 or 75 for an unreadable file, 321 with the line number for one that is no layout.
    static MenuLayout read(const QString &path);
};
