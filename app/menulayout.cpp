#include "app/menulayout.h"

#include "core/fileerrors.h"

#include <QXmlStreamReader>

namespace {

/// Reads the layout's XML. An element or id that does not belong raises an error in the stream, which ends
/// the walk.
class LayoutReader
{
public:
    explicit LayoutReader(const QString &path) : m_xml(FileErrors::readWhole(path)), m_path(path) {}

    MenuLayout read()
    {
        MenuLayout layout;
        if (!m_xml.readNextStartElement() || m_xml.name() != QLatin1StringView("layout"))
            m_xml.raiseError(QStringLiteral("not a menu layout"));
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1StringView("menubar"))
                readMenuBar(layout);
            else if (m_xml.name() == QLatin1StringView("toolbar"))
                layout.toolBars << readMenu(QLatin1StringView("name"));
            else
                refuseElement();
        }
        if (m_xml.hasError())
            throw RuntimeError(
                ErrorNumber::InvalidFileFormat,
                QStringLiteral("%1:%2: %3").arg(m_path).arg(m_xml.lineNumber()).arg(m_xml.errorString()));
        return layout;
    }

private:
    void readMenuBar(MenuLayout &layout)
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1StringView("menu"))
                layout.menus << readMenu(QLatin1StringView("caption"));
            else
                refuseElement();
        }
    }

    MenuLayout::Menu readMenu(QLatin1StringView captionAttribute)
    {
        MenuLayout::Menu menu;
        menu.caption = m_xml.attributes().value(captionAttribute).toString();
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1StringView("command"))
                menu.entries << readCommand();
            else if (m_xml.name() == QLatin1StringView("separator"))
                menu.entries << MenuLayout::Entry{};
            else
                refuseElement();
            m_xml.skipCurrentElement();
        }
        return menu;
    }

    MenuLayout::Entry readCommand()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const auto text = [&](const char *name) {
            return attributes.value(QLatin1StringView(name)).toString();
        };
        const MenuLayout::Entry entry{attributes.value(QLatin1StringView("id")).toInt(), text("caption"),
                                      text("short"), text("shortcut"), text("icon")};
        if (entry.id <= 0)
            m_xml.raiseError(QStringLiteral("a command without an id"));
        return entry;
    }

    void refuseElement() { m_xml.raiseError(QStringLiteral("unexpected <%1>").arg(m_xml.name())); }

    QXmlStreamReader m_xml;
    const QString m_path;
};

} // namespace

MenuLayout MenuLayout::read(const QString &path)
{
    return LayoutReader(path).read();
}
