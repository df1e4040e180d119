#pragma once

#include <QList>
#include <QString>
#include <QUrl>

/// The pages of the help file, as resources of the program.
namespace HelpBook {

struct Topic
{
    QString title;
    QString page;  ///< file name, "elements.html"
    int level = 0; ///< depth in the contents, from 0
};

QUrl address(const QString &page);

/// In the order of the book.
QList<Topic> contents();

/// The keywords, in alphabetical order.
QList<Topic> index();

/// The pages with all of @p words, in the order of the book. Parts of words count, case does not.
QList<Topic> search(const QString &words);

} // namespace HelpBook
