#include "sidewindows/tips.h"

#include "core/codepage.h"
#include "core/fileerrors.h"
#include "core/usersettings.h"
#include "core/value.h"

std::optional<QStringList> Tips::read(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QString text = CodePage::decode(FileErrors::readWhole(path));
    text.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (text.isEmpty())
        return QStringList();
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.split(QLatin1Char('\n'));
}

int Tips::next(int last, int count, const std::function<double()> &fraction)
{
    int number = last;
    do
        number = int(fraction() * count) + 1;
    while (number == last && count > 1);
    return number;
}

bool Tips::isWanted()
{
    const QVariant setting =
        userSettings().value(QStringLiteral("Options/Show Tips at Startup"), QStringLiteral("1"));
    return !Value(Value(setting.toString()).toNumber()).equals(0);
}
