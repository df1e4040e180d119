#include "app/menulayout.h"

#include "core/fileerrors.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

MenuLayout MenuLayout::read(const QString &path)
{
    MenuLayout layout;
    QXmlStreamReader xml(FileErrors::readWhole(path));
    QList<Entry> *entries = nullptr; // of the menu or tool bar being read
    const auto text = [&](const QString &attribute) { return xml.attributes().value(attribute).toString(); };
    const auto begin = [&](QList<Menu> &list, const QString &caption) {
        list << Menu{caption, {}};
        entries = &list.last().entries;
    };

    if (!xml.readNextStartElement() || xml.name() != u"layout"_s)
        xml.raiseError(u"not a menu layout"_s);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() == u"menubar"_s)
            continue;
        if (xml.name() == u"menu"_s)
            begin(layout.menus, text(u"caption"_s));
        else if (xml.name() == u"toolbar"_s)
            begin(layout.toolBars, text(u"name"_s));
        else if (entries && xml.name() == u"separator"_s)
            *entries << Entry{};
        else if (entries && xml.name() == u"command"_s && text(u"id"_s).toInt() > 0)
            *entries << Entry{text(u"id"_s).toInt(), text(u"caption"_s), text(u"short"_s),
                              text(u"shortcut"_s), text(u"icon"_s)};
        else
            xml.raiseError(u"unexpected <%1>, or a command without an id"_s.arg(xml.name()));
    }
    if (xml.hasError())
        throw RuntimeError(ErrorNumber::InvalidFileFormat,
                           u"%1:%2: %3"_s.arg(path).arg(xml.lineNumber()).arg(xml.errorString()));
    return layout;
}
