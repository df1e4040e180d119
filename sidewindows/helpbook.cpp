#include "sidewindows/helpbook.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>

using namespace Qt::StringLiterals;

static void initResource()
{
    Q_INIT_RESOURCE(help);
}

namespace {

QByteArray contentOf(const QString &file)
{
    initResource();
    QFile resource(u":/help/"_s + file);
    return resource.open(QIODevice::ReadOnly) ? resource.readAll() : QByteArray();
}

// Contents and index of the help compiler are nested lists of objects.
QList<HelpBook::Topic> topics(const QString &file)
{
    static const QRegularExpression Part(
        u"<(/?)UL>|name=\"Name\" value=\"([^\"]*)\"><param name=\"Local\" value=\"([^\"]*)\""_s);
    QList<HelpBook::Topic> found;
    int level = -1;
    const QString text = QString::fromUtf8(contentOf(file));
    for (const QRegularExpressionMatch &part : Part.globalMatch(text)) {
        if (part.hasCaptured(3))
            found << HelpBook::Topic{part.captured(2), part.captured(3), level};
        else
            level += part.captured(1).isEmpty() ? 1 : -1;
    }
    return found;
}

QString textOf(const QString &page)
{
    QXmlStreamReader reader(contentOf(page));
    QString text;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters)
            text += reader.text();
    }
    return text.simplified();
}

} // namespace

QUrl HelpBook::address(const QString &page)
{
    return QUrl(u"qrc:/help/"_s + page);
}

QList<HelpBook::Topic> HelpBook::contents()
{
    return topics(u"alembra_help_uk.hhc"_s);
}

QList<HelpBook::Topic> HelpBook::index()
{
    return topics(u"alembra_help_uk.hhk"_s);
}

QList<HelpBook::Topic> HelpBook::search(const QString &words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QList<Topic> found = contents();
    found.removeIf([&](const Topic &topic) {
        const QString text = textOf(topic.page);
        return wanted.isEmpty() || !std::all_of(wanted.begin(), wanted.end(), [&](const QString &word) {
                   return text.contains(word, Qt::CaseInsensitive);
               });
    });
    return found;
}
