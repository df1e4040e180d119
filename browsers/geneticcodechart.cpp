#include "browsers/geneticcodechart.h"

#include "browsers/geneticcodepainter.h"

#include <QPainter>

using namespace Qt::StringLiterals;

GeneticCodeChart::GeneticCodeChart(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(u"Table of the standard genetic code"_s);
}

void GeneticCodeChart::paintEvent(QPaintEvent *)
{
    constexpr double Margin = 18; // logical pixels
    const QPalette colours = palette();
    QColor boxLine = colours.color(QPalette::WindowText);
    boxLine.setAlphaF(0.6F);
    const auto background = [&](const QString &name) {
        return colours.color(name == u"Stop"_s ? QPalette::AlternateBase : QPalette::Base);
    };
    QPainter painter(this);
    painter.translate(0.5, 0.5);
    const GeneticCodePainter code(QRectF(0, 0, width() - 1, height() - 1),
                                  {font(), Margin, colours.color(QPalette::WindowText),
                                   colours.color(QPalette::Text), colours.color(QPalette::Mid), boxLine,
                                   background, false});
    code.paint(painter);
}
