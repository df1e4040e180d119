#include "tools/make_pictures/painting.h"

#include "tools/tables/table.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr char Typeface[] = "DejaVu Sans";

} // namespace

void requireTypeface()
{
    if (!QFontDatabase::families().contains(QLatin1String(Typeface)))
        throw BuildError(u"the typeface %1 is not installed"_s.arg(QLatin1String(Typeface)));
}

QFont textFont(int pixels, bool bold)
{
    QFont font{QString::fromLatin1(Typeface)};
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

void setType(QPainter &painter, const QColor &colour, int pixels, bool bold)
{
    painter.setPen(colour);
    painter.setFont(textFont(pixels, bold));
}

QImage blankPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto mix = [share](int one, int other) { return int(std::lround(one + share * (other - one))); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor tint(const QColor &colour, double share)
{
    return mixed(Qt::white, colour, share);
}

QImage inGreys(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_Grayscale8);
}

QStringList wrapped(const QString &text, const QFont &font, int width)
{
    const QFontMetricsF metrics(font);
    QStringList lines(QString{});
    for (const QString &word : text.split(u' ')) {
        const QString longer = lines.last().isEmpty() ? word : lines.last() + u' ' + word;
        if (lines.last().isEmpty() || metrics.horizontalAdvance(longer) <= width)
            lines.last() = longer;
        else
            lines << word;
    }
    return lines;
}

ScriptText ScriptText::formula(const QString &text, int pixels, bool bold)
{
    static const QRegularExpression position(u"(?<![^ (])[CEHN][0-9]+(?![0-9A-Za-z])|(?<=\\bS)N[12]\\b"_s);
    return {text, textFont(pixels, bold), pixels * 0.2, [](const QString &whole, int digit) {
                const QRegularExpressionMatch match = position.match(whole, digit - 1);
                const bool isPosition = match.hasMatch() && match.capturedStart() == digit - 1;
                const QChar before = whole[digit - 1];
                return (before.isLetter() && !isPosition) || before == u')';
            }};
}

ScriptText ScriptText::configuration(const QString &text, int pixels)
{
    return {text, textFont(pixels), pixels * -0.35,
            [](const QString &whole, int digit) { return whole[digit - 1].isLetter(); }};
}

ScriptText::ScriptText(const QString &text, const QFont &font, double shift, IsScript isScript)
    : m_font(font), m_small(font), m_shift(shift)
{
    m_small.setPixelSize(font.pixelSize() * 7 / 10);
    for (int i = 0; i < text.size(); ++i) {
        const bool continues = i > 0 && text[i - 1].isDigit() && m_runs.last().script;
        const bool script = i > 0 && text[i].isDigit() && (continues || isScript(text, i));
        if (m_runs.isEmpty() || m_runs.last().script != script)
            m_runs << Run{{}, script};
        m_runs.last().text += text[i];
    }
    for (const Run &run : m_runs)
        m_width += QFontMetricsF(run.script ? m_small : m_font).horizontalAdvance(run.text);
}

void ScriptText::paint(QPainter &painter, double x, double baseline) const
{
    for (const Run &run : m_runs) {
        const QFont &font = run.script ? m_small : m_font;
        painter.setFont(font);
        painter.drawText(QPointF(x, baseline + (run.script ? m_shift : 0)), run.text);
        x += QFontMetricsF(font).horizontalAdvance(run.text);
    }
}
