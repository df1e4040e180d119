#include "sidewindows/sourcepage.h"

#include "store/rowremarks.h"

#include <QRegularExpression>
#include <QSet>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Kind = RecordedSource::Kind;
using RowRemarks::Document;

struct Wording
{
    const char *sign;
    const char *words;
};

/// The values that a part of a `source` cell is about.
constexpr std::array Values{
    Wording{"pK", "pK"},
    Wording{"mp", "Melting point"},
    Wording{"sol", "Solubility"},
    Wording{"polarite", "Polarity index"},
    Wording{"solubeau", "Solubility in water"},
    Wording{"nonmiscible", "Solvents that do not mix with it"},
    Wording{"in part", "Some of the values"},
};

/// What a licence asks for. The others say it themselves.
constexpr std::array Clauses{
    Wording{"non-commercial", "non-commercial use only"},
    Wording{"share-alike", "share alike, the source named"},
    Wording{"attribution", "the source named"},
};

template<size_t Count>
QString inWords(const std::array<Wording, Count> &wordings, const QString &sign)
{
    for (const Wording &wording : wordings) {
        if (sign == QLatin1StringView(wording.sign))
            return QString::fromLatin1(wording.words);
    }
    return {};
}

QString paragraph(const QString &html)
{
    return u"<p>%1</p>"_s.arg(html);
}

/// @p text with its DOIs and web addresses as links.
QString linked(const QString &text)
{
    static const QRegularExpression doi(uR"(\b(doi[: ] ?)(10\.\d+/[^\s,;)]*[^\s,;.)]))"_s);
    static const QRegularExpression site(
        uR"((?<![\w./@])((?:[\w-]+\.)+(?:com|org|net|edu|gov|info|pub|de|fr|es|uk|ca|au|pl|ls|ua|us)\b(?:/[^\s,;)]*)?))"_s);
    QString html = text.toHtmlEscaped();
    html.replace(site, uR"(<a href="https://\1">\1</a>)"_s);
    return html.replace(doi, uR"(\1<a href="https://doi.org/\2">\2</a>)"_s);
}

QString licence(const Document &document)
{
    if (document.licence == u'-')
        return {};
    const QString asks = inWords(Clauses, document.clause);
    return u"<br>Licence: %1%2."_s.arg(document.licence.toHtmlEscaped(),
                                       asks.isEmpty() ? asks : u"; "_s + asks);
}

QString documentOf(const QString &key)
{
    const auto document = RowRemarks::document(key);
    if (!document)
        return paragraph(
            u"\u201C%1\u201D. That is what the database says; the program has no more on it."_s.arg(
                key.toHtmlEscaped()));
    if (document->clause == u"general")
        return paragraph(
            u"General knowledge, no document: well established, but none of us has seen a document for it. "
            "Look it up before you rely on it."_s);
    QString text = linked(document->text);
    if (document->clause == u"unnamed")
        text += u".<br>This document cannot be looked up."_s;
    return paragraph(text + licence(*document));
}

QString documents(const QString &source)
{
    QString html;
    for (const QString &part : source.split(u"; "_s)) {
        const qsizetype colon = part.indexOf(u": "_s);
        if (colon >= 0) {
            const QString values = part.first(colon);
            const QString words = inWords(Values, values);
            html += u"<h4>%1</h4>"_s.arg(words.isEmpty() ? values.toHtmlEscaped() : words);
        }
        for (const QString &key : part.sliced(colon < 0 ? 0 : colon + 2).split(u", "_s))
            html += documentOf(key);
    }
    return html;
}

/// The doubt, and what the short names of documents in it mean.
QString doubt(const TableRow &row)
{
    static const QRegularExpression word(u"[\\w.-]*\\w"_s);
    const QString text = RowRemarks::doubt(row);
    if (text.isEmpty())
        return {};
    QString html = u"<h4>In doubt</h4>"_s + paragraph(linked(text));
    QSet<QString> named{u"general"_s};
    for (auto match = word.globalMatch(text); match.hasNext();) {
        const QString key = match.next().captured();
        const auto document = RowRemarks::document(key);
        if (document && !named.contains(key))
            html += paragraph(key + u": "_s + linked(document->text));
        named << key;
    }
    return html;
}

/// The buttons above these lists bear names of companies.
QString namesOfLists(const TableRow &row)
{
    if (row.table != u"Indicateurscolores" && row.table != u"Fluorochromes")
        return {};
    return paragraph(
        u"<i>Merck, Riedel-deHaën, Carl-Zeiss and Olympus on the buttons only name the lists, which are not "
        "from these companies.</i>"_s);
}

QString answer(const TableRow &row, const RecordedSource &recorded)
{
    switch (recorded.kind) {
    case Kind::Recorded:
        break;
    case Kind::OtherRow:
        return paragraph(
            u"The database was changed after the program read it, and now has another row here. Start the "
            "program again to see its sources."_s);
    case Kind::Unreadable:
        return paragraph(u"The database can no longer be read, so the source is not known."_s);
    case Kind::None:
        return paragraph(u"No source is recorded for this row in the database."_s);
    }
    const QString changed =
        u"You added or changed this row. The sources below are those that your database names; they may not "
        "be those of changed values."_s;
    return (recorded.changed ? paragraph(changed) : QString()) + documents(recorded.source) + doubt(row) +
           namesOfLists(row);
}

} // namespace

QString SourcePage::html(const TableRow &row, const RecordedSource &recorded)
{
    if (row.table.isEmpty())
        return paragraph(u"No source is recorded for this."_s) +
               paragraph(u"Select a row of a list, or an element, and try again. Results of the calculators "
                         u"and the "
                         "program's own texts are in no table."_s);
    QStringList name = row.texts;
    name.removeAll(QString());
    return u"<h3>%1</h3>"_s.arg(name.mid(0, 2).join(u", "_s).toHtmlEscaped()) + answer(row, recorded);
}
