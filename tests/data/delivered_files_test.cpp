// The text files that the program folder is delivered with: what the program would stumble over, or show
// wrongly, if an edit broke it.

#include "calc/units.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray delivered(const char *name)
{
    QFile file(QStringLiteral(ALEMBRA_FOLDER "/") + QLatin1StringView(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The lines of a file whose lines all end with CR LF; none if one does not. The characters from 0x80 to
/// 0x9F, in which Windows-1252 and Latin-1 differ, must not occur.
QStringList linesOf(const QByteArray &bytes)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n"));
    const QString text = QString::fromLatin1(bytes);
    QStringList lines = text.split(lineEnd);
    const bool ended = lines.takeLast().isEmpty();
    const bool plain = !text.contains(QRegularExpression(QStringLiteral("[\\x{80}-\\x{9f}]")));
    const bool clean = std::none_of(lines.cbegin(), lines.cend(), [](const QString &line) {
        return line.contains(u'\r') || line.contains(u'\n');
    });
    return ended && plain && clean ? lines : QStringList();
}

struct Layout
{
    QList<int> menuIds;
    QList<int> barIds;
    QStringList captions;
    QStringList icons;
    QStringList shortcuts;
    bool sound = false;
};

Layout readLayout()
{
    Layout layout;
    QXmlStreamReader xml(delivered("menuc_uk.xcb"));
    bool inBar = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.name() == u"toolbar")
            inBar = xml.isStartElement();
        if (!xml.isStartElement() || xml.name() != u"command")
            continue;
        const QXmlStreamAttributes command = xml.attributes();
        (inBar ? layout.barIds : layout.menuIds) << command.value("id"_L1).toInt();
        if (inBar)
            continue;
        layout.captions << command.value("caption"_L1).toString();
        layout.icons << command.value("icon"_L1).toString();
        if (command.hasAttribute("shortcut"_L1))
            layout.shortcuts << command.value("shortcut"_L1).toString();
    }
    layout.sound = !xml.hasError();
    return layout;
}

} // namespace

class DeliveredFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsHaveANameForEachUnitAndNumbersOtherwise();
    void everyTipIsOneLineOfText();
    void layoutOffersEveryCommandOnce();
    void commandsOfTheToolBarStandInTheMenu();
    void everyCommandHasItsOwnCaptionShortcutAndAnIcon();
};

void DeliveredFilesTest::optionsHaveANameForEachUnitAndNumbersOtherwise()
{
    const QStringList values = linesOf(delivered("options_uk.ini"));
    QVERIFY(values.size() >= 90); // those of the first release
    QSet<int> units;
    for (const Quantity &quantity : Units::quantities())
        std::visit(
            [&](const auto &list) {
                for (const auto &unit : list)
                    units << unit.slot;
            },
            quantity.units);
    QVERIFY(*std::max_element(units.cbegin(), units.cend()) < values.size());
    static const QRegularExpression unitName(QStringLiteral("^\"[^\"()]+ \\([^\"()]+\\)\"$"));
    static const QRegularExpression number(QStringLiteral("^\\d+$"));
    for (int slot = 0; slot < values.size(); ++slot)
        QVERIFY2((units.contains(slot) ? unitName : number).match(values.at(slot)).hasMatch(),
                 qPrintable(QStringLiteral("slot %1: %2").arg(slot).arg(values.at(slot))));
}

void DeliveredFilesTest::everyTipIsOneLineOfText()
{
    const QStringList tips = linesOf(delivered("TIPOFDAY_UK.TXT"));
    // With a single tip "Next tip" would look for another one for ever.
    QVERIFY(tips.size() >= 2);
    QCOMPARE(QSet<QString>(tips.cbegin(), tips.cend()).size(), tips.size());
    for (const QString &tip : tips)
        QVERIFY2(!tip.isEmpty() && tip == tip.trimmed(), qPrintable(tip));
}

void DeliveredFilesTest::layoutOffersEveryCommandOnce()
{
    const Layout layout = readLayout();
    QVERIFY(layout.sound);
    QList<int> ids = layout.menuIds;
    std::sort(ids.begin(), ids.end());
    QCOMPARE(ids, (QList<int>{1005, 1058, 1106, 1108, 1109, 1111, 1113, 1115, 1116, 1117,
                              1118, 1119, 1120, 1121, 1122, 1123, 1124, 1125, 1131, 1132,
                              1133, 1134, 1135, 1138, 1139, 1141, 1142, 1143, 1144, 1145}));
}

void DeliveredFilesTest::commandsOfTheToolBarStandInTheMenu()
{
    const Layout layout = readLayout();
    QVERIFY(!layout.barIds.isEmpty());
    for (const int id : layout.barIds)
        QVERIFY2(layout.menuIds.contains(id), qPrintable(QString::number(id)));
}

void DeliveredFilesTest::everyCommandHasItsOwnCaptionShortcutAndAnIcon()
{
    const Layout layout = readLayout();
    QVERIFY(!layout.captions.contains(QString()));
    QCOMPARE(QSet<QString>(layout.shortcuts.cbegin(), layout.shortcuts.cend()).size(),
             layout.shortcuts.size());
    for (const QString &icon : layout.icons) {
        const QString file = icon + QStringLiteral(".svg");
        QVERIFY2(QFile::exists(QStringLiteral(ALEMBRA_SOURCE "/data/icons/") + file), qPrintable(icon));
    }
}

QTEST_GUILESS_MAIN(DeliveredFilesTest)
#include "delivered_files_test.moc"
