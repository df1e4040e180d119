#include "tools/make_pictures/shiftaxis.h"

#include "tools/make_pictures/painting.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostTicks = 10;
constexpr double Rounding = 1e-6; // of a tick: shifts are decimal fractions

/// The smallest step of 1, 2 or 5 times a power of ten that needs no more than MostTicks.
double tickStep(double span)
{
    double step = 0.01;
    for (int i = 0; span / step > MostTicks; ++i)
        step *= i % 3 == 1 ? 2.5 : 2;
    return step;
}

struct ClassColour
{
    const char *pattern;
    QRgb colour;
};

// The first match counts.
constexpr std::array ClassColours{
    ClassColour{R"(C=O|arbonyl|COO\b)", 0xd07820},
    ClassColour{R"(halogen|-(F|Cl|Br|I)\b)", 0x1f9a9a},
    ClassColour{R"(OH|oxygen|to O\b|-O\b|\(O\)|acetal)", 0xd04040},
    ClassColour{R"(NH|nitrogen|to N\b|-N\b|[=≡]N\b|N-CO)", 0x4060d0},
    ClassColour{R"(SH|sulfur|to S\b|-S\b|=S\b)", 0xa8a020},
    ClassColour{"Si|metals", 0xb040b0},
    ClassColour{"CO|CHO|ldehyd", 0xd07820},
    ClassColour{R"(romatic|aryl|Ar\b|enzene|aphthal|furan|thiophene|pyr|azole)", 0x7b5ea8},
    ClassColour{"C[=≡]C|lkene|lkyne|=CH", 0x2f8f4e},
};

} // namespace

ShiftAxis::ShiftAxis(double high, double low, double left, double right)
    : m_high(high), m_low(low), m_left(left), m_right(right), m_step(tickStep(high - low))
{}

ShiftAxis ShiftAxis::around(double low, double high, double left, double right)
{
    const double step = tickStep(high - low);
    return {std::ceil(high / step - Rounding) * step, std::floor(low / step + Rounding) * step, left, right};
}

double ShiftAxis::abscissa(double shift) const
{
    return m_left + (m_high - shift) / (m_high - m_low) * (m_right - m_left);
}

QList<double> ShiftAxis::ticks() const
{
    QList<double> ticks;
    for (double k = std::ceil(m_low / m_step - Rounding); k * m_step <= m_high + Rounding * m_step; ++k)
        ticks << k * m_step;
    return ticks;
}

void ShiftAxis::paintGrid(QPainter &painter, double top, double bottom) const
{
    painter.setPen(QPen(Grid, 1));
    for (const double tick : ticks()) {
        const double x = std::round(abscissa(tick)) + 0.5;
        painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    }
}

void ShiftAxis::paint(QPainter &painter, double y) const
{
    painter.setPen(QPen(Ink, 1));
    painter.setFont(textFont(11));
    painter.drawLine(QPointF(m_left, y + 0.5), QPointF(m_right, y + 0.5));
    const int decimals = std::max(0, -int(std::floor(std::log10(m_step) + Rounding)));
    for (const double tick : ticks()) {
        const double x = std::round(abscissa(tick)) + 0.5;
        painter.drawLine(QPointF(x, y), QPointF(x, y + 4));
        QString text = QString::number(std::abs(tick) < m_step / 2 ? 0 : tick, 'f', decimals);
        text.replace(u'-', u"−"_s);
        painter.drawText(QRectF(x - 30, y + 5, 60, 14), Qt::AlignCenter, text);
    }
    painter.drawText(QRectF(m_right + 24, y + 2, 60, 20), Qt::AlignLeft | Qt::AlignVCenter, u"δ / ppm"_s);
}

void ShiftRange::paint(QPainter &painter, const ShiftAxis &axis, double top, double height,
                       const QColor &colour) const
{
    const double left = axis.abscissa(high);
    const double width = std::max(3.0, axis.abscissa(low) - left);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    if (bar) {
        painter.drawRoundedRect(QRectF(left, top, width, height), 2, 2);
    } else {
        painter.drawRect(QRectF(left, std::floor(top + height / 2), width, 1));
        for (const double end : {left - 1, left + width - 1})
            painter.drawRect(QRectF(end, top, 2, height));
    }
    const double middle = axis.abscissa(typical);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(middle - 2, top - 2, 4, height + 4));
    painter.setBrush(Ink);
    painter.drawRect(QRectF(middle - 1, top - 2, 2, height + 4));
}

QColor classColour(const QString &name)
{
    for (const ClassColour &entry : ClassColours) {
        if (name.contains(QRegularExpression(QString::fromUtf8(entry.pattern))))
            return QColor(entry.colour);
    }
    return QColor(0x60, 0x70, 0x80);
}
