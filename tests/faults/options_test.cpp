#include "tests/support/wholerun.h"
#include "widgets/tabstrip.h"

#include <QLineEdit>
#include <QListWidget>
#include <QStringEncoder>

/// Options files that somebody has spoilt: the program starts with what can be read in them, or reports that
/// there are too many values, and the conversions work on whatever the units are called.
class OptionsTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void damaged()
    {
        const QByteArray whole = readFile(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
        m_lines = whole.chopped(2).replace("\r", "").split('\n');
        QCOMPARE(m_lines.size(), 90);
        // The decimals of the first conversion are a text; the tab Length has units without a symbol.
        const char *const withoutDecimals = "report 13 later";
        const char *const withoutSymbol = "report 9 later";
        const char *const tooMany = "report 9";
        struct
        {
            const char *name;
            QByteArray content;
            const char *outcome = "runs";
        } const rows[] = {
            {"nothing but line ends", "\r\n\r\n", withoutSymbol},
            {"102 lines", QByteArray("1\r\n").repeated(102), tooMany},
            {"every line followed by an empty one", m_lines.join("\r\n\r\n"), tooMany},
            {"the first half", whole.first(whole.size() / 2)},
            {"the second half", whole.last(whole.size() / 2), withoutDecimals},
            {"a huge quoted line", '"' + QByteArray(10'000'000, 'x') + '"', withoutSymbol},
            {"quote not closed in the last line", with({{87, "\"kWh (kWh)"}})},
            {"mark of UTF-8 in front", "\xEF\xBB\xBF" + whole, withoutDecimals},
            {"UTF-16", QStringEncoder(QStringEncoder::Utf16LE)(QString::fromLatin1(whole)), tooMany},
            {"units without brackets", withUnits("\"unit\""), withoutSymbol},
            {"units with brackets the wrong way round", withUnits("\")unit(\"")},
            {"units of 100,000 letters", with({{1, '"' + QByteArray(100000, 'u') + " (u)\""}})},
            {"decimals beyond all measure", with({{0, "1E308"}})},
            {"switches that are texts", with({{53, "yes"}, {54, "XP"}, {56, "no"}, {86, "on"}, {88, "x"}})},
            {"switches beyond their values", with({{53, "2"}, {54, "99"}, {56, "7"}, {86, "1"}, {88, "-1"}})},
        };
        for (const auto &[name, content, expected] : rows) {
            const ProgramFolder folder;
            folder.write("options_uk.ini", content);
            QString end = outcome(folder, convertEverything);
            if (m_cameUp && end != "runs")
                end += " later";
            const QString row = QLatin1StringView(name) + ": ";
            QCOMPARE(row + end, row + expected);
            QCOMPARE(folder.read("options_uk.ini"), content); // a start never writes it
        }
    }

private:
    // The delivered lines with those of @p changes in their places.
    QByteArray with(std::initializer_list<std::pair<int, QByteArray>> changes) const
    {
        QList<QByteArray> lines = m_lines;
        for (const auto &[slot, line] : changes)
            lines[slot] = line;
        return lines.join("\r\n") + "\r\n";
    }

    QByteArray withUnits(const QByteArray &name) const
    {
        QList<QByteArray> lines = m_lines;
        std::replace_if(
            lines.begin() + 1, lines.end(), [](const QByteArray &line) { return line.startsWith('"'); },
            name);
        return lines.join("\r\n") + "\r\n";
    }

    // Every quantity and each of its units, with a number typed.
    static void convertEverything(Form1 &form)
    {
        if (auto *tip = form.findChild<QWidget *>("frmTip"))
            tip->close();
        form.executeCommand(1120);
        auto &tabs = get<TabStrip>(form, "TabStrip3");
        auto &field = get<QLineEdit>(form, "TextBoxM1");
        for (int tab = 0; tab < tabs.count(); ++tab) {
            QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
            QCOMPARE(tabs.currentIndex(), tab);
            for (int list = 1; list <= 16; ++list) {
                auto &units = get<QListWidget>(form, QString("List%1").arg(list));
                for (int row = 0; units.isVisible() && row < units.count(); ++row)
                    units.setCurrentRow(row);
            }
            field.clear();
            QTest::keyClicks(&field, "-12.5");
        }
    }

    QList<QByteArray> m_lines; ///< as delivered
};

const TestClass<OptionsTest> optionsTest;
#include "options_test.moc"
