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
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool isSameName(QStringView left, QStringView right)
{
    return left.trimmed().compare(right.trimmed(), Qt::CaseInsensitive) == 0;
}

/// The name in "[name]"; nothing for any other line.
std::optional<QStringView> sectionOf(QStringView line)
{
    if (!line.startsWith(QLatin1Char('[')))
        return std::nullopt;
    const qsizetype end = line.indexOf(QLatin1Char(']'));
    return end < 0 ? line.sliced(1) : line.sliced(1, end - 1);
}

QStringView withoutQuotes(QStringView value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\''));
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
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (!inSection || equals < 0 || line.startsWith(QLatin1Char(';')))
            continue;
        if (isSameName(line.first(equals), key))
            return withoutQuotes(line.sliced(equals + 1).trimmed()).left(LongestValue).toString();
    }
    return {};
}
