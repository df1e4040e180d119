#pragma once

#include <QList>
#include <QString>

/// The page of the sources of the tables.
namespace References {

struct Entry
{
    enum class Kind { Heading, Source, Link };

    int index; ///< of the label, `Label1(index)`
    Kind kind;
    QString text;
    QString target = {}; ///< of a link: its address; one with "/" in front is a file of the program folder
    int bullet = 0;      ///< of a link: index of the label with the hyphen before it
};

/// In the order of the page, each heading before its sources.
const QList<Entry> &page();

/// The donation page of the product's web site.
QString donationPage();

} // namespace References
