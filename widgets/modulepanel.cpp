#include "widgets/modulepanel.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

ModulePanel::ModulePanel(const char *name, QWidget *parent) : QWidget(parent)
{
    setObjectName(name);
    setFixedSize(Size);
    hide();
}

QFont ModulePanel::fittingFont(QFont desktop)
{
    // Enough for DejaVu Sans and Noto Sans of 10 points.
    constexpr double Widest = 151;
    constexpr double Highest = 18;
    const auto fits = [](const QFont &font) {
        const QFontMetricsF metrics(font);
        return metrics.height() <= Highest &&
               metrics.horizontalAdvance(u"Temperature / Pressure"_s) <= Widest;
    };
    while (desktop.pointSizeF() > 1 && !fits(desktop))
        desktop.setPointSizeF(desktop.pointSizeF() - 0.5);
    return desktop;
}

void ModulePanel::setVisible(bool visible)
{
    if (visible)
        build();
    QWidget::setVisible(visible);
}

void ModulePanel::build()
{
    if (m_built)
        return;
    m_built = true;
    buildContents();
}
