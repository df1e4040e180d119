#include "sidewindows/tips.h"

#include "core/codepage.h"
#include "core/fileerrors.h"
#include "core/numbers.h"
#include "core/usersettings.h"

using namespace Qt::StringLiterals;

std::optional<QStringList> Tips::read(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QString text = CodePage::decode(FileErrors::readWhole(path));
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (text.isEmpty())
        return QStringList();
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
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
    const QVariant setting = userSettings().value(u"Options/Show Tips at Startup"_s, u"1"_s);
    return Numbers::requireInvariant(setting.toString()) != 0;
}
