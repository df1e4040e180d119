#include "widgets/readable.h"

#include <QApplication>
#include <QStyle>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb LinkOnDark = 0xFF7AB8FF;
constexpr QRgb LinkOnLight = 0xFF0057AE;

constexpr std::array Fields{"QLineEdit", "QComboBox", "QAbstractItemView", "QCheckBox", "QRadioButton"};

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The colour in which Fusion draws edges on a window.
QColor edgeOn(const QColor &window)
{
    constexpr int Darker = 140;
    return window.darker(Darker);
}

/// The window colour from which Fusion draws edges that are visible on @p desktop.
QColor windowWithEdges(const QPalette &desktop)
{
    const QColor window = desktop.color(QPalette::Window);
    const QColor base = desktop.color(QPalette::Base);
    const auto isSeen = [&](const QColor &edge) {
        return Readable::contrast(edge, window) >= Readable::EdgeContrast &&
               Readable::contrast(edge, base) >= Readable::EdgeContrast;
    };
    QColor lighter = window;
    for (int value = window.value(); value < 255 && !isSeen(edgeOn(lighter)); ++value)
        lighter.setHsv(window.hue(), window.saturation(), value);
    return lighter;
}

} // namespace

double Readable::contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QPalette Readable::ownLinks(const QPalette &desktop)
{
    const QColor window = desktop.color(QPalette::Window);
    QPalette own;
    if (contrast(desktop.color(QPalette::Link), window) >= TextContrast)
        return own;
    const bool dark = contrast(LinkOnDark, window) > contrast(LinkOnLight, window);
    own.setColor(QPalette::Link, dark ? LinkOnDark : LinkOnLight);
    return own;
}

// Fusion derives edges from the palette's window colour, which fields use for nothing else.
void Readable::showEdges()
{
    const QPalette desktop = QApplication::palette();
    if (QApplication::style()->name() != u"fusion"_s)
        return;
    const bool dark =
        luminance(desktop.color(QPalette::Window)) < luminance(desktop.color(QPalette::WindowText));
    QPalette edges = desktop;
    if (dark)
        edges.setColor(QPalette::Window, windowWithEdges(desktop));
    for (const char *field : Fields) {
        if (QApplication::palette(field) != edges)
            QApplication::setPalette(edges, field);
    }
}
