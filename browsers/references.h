#pragma once

#include <QList>
#include <QString>

/// The page of the sources that the tables rest on.
namespace References {

struct Entry
{
    enum class Kind { Heading, Source, Link };

    int index; ///< of the label, `Label1(index)`
    Kind kind;
    QString text;
    QString target =
        {}; ///< of a link: the address that it opens; one that begins with "/" is in the program folder
    int bullet = 0; ///< of a link: index of the label with the hyphen before it
};

/// In the order of the page, each heading before its sources.
const QList<Entry> &page();

/// The donation page of the product's web site.
QString donationPage();

} // namespace References
