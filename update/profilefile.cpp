#include "update/profilefile.h"

#include "core/codepage.h"

#include <QFile>
#include <QStringList>
#include <optional>

namespace {

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = CodePage::decode(file.readAll());
    text.replace(u'\r', u'\n');
    return text.split(u'\n', Qt::SkipEmptyParts);
}

bool isSameName(QStringView left, QStringView right)
{
    return left.trimmed().compare(right.trimmed(), Qt::CaseInsensitive) == 0;
}

/// The name in "[name]"; nothing for any other line.
std::optional<QStringView> sectionOf(QStringView line)
{
    if (!line.startsWith(u'['))
        return std::nullopt;
    const qsizetype end = line.indexOf(u']');
    return end < 0 ? line.sliced(1) : line.sliced(1, end - 1);
}

QStringView withoutQuotes(QStringView value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

} // namespace

QString ProfileFile::value(const QString &path, const QString &section, const QString &key)
{
    bool inSection = false;
    for (const QString &whole : linesOf(path)) {
        const QStringView line = QStringView(whole).trimmed();
        if (const std::optional<QStringView> name = sectionOf(line)) {
            if (inSection)
                return {};
            inSection = isSameName(*name, section);
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!inSection || equals < 0 || line.startsWith(u';'))
            continue;
        if (isSameName(line.first(equals), key))
            return withoutQuotes(line.sliced(equals + 1).trimmed()).left(LongestValue).toString();
    }
    return {};
}
