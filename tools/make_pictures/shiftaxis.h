// Scales of chemical shift and the ranges on them.
#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QPainter;

/// A scale in ppm that falls from left to right, as spectra are printed.
class ShiftAxis
{
public:
    /// From @p high ppm at the abscissa @p left to @p low ppm at @p right, in pixels.
    ShiftAxis(double high, double low, double left, double right);

    /// A scale that includes [@p low, @p high], rounded outwards to whole ticks.
    static ShiftAxis around(double low, double high, double left, double right);

    double abscissa(double shift) const;
    double high() const { return m_high; }
    double low() const { return m_low; }

    /// Vertical lines at the ticks between @p top and @p bottom.
    void paintGrid(QPainter &painter, double top, double bottom) const;

    /// The line with ticks and numbers below @p y, then "δ / ppm" right of it. Takes 20 pixels.
    void paint(QPainter &painter, double y) const;

private:
    QList<double> ticks() const;

    double m_high;
    double m_low;
    double m_left;
    double m_right;
    double m_step;
};

/// The shifts of one motif, in ppm.
struct ShiftRange
{
    double low = 0;
    double typical = 0;
    double high = 0;
    bool bar = true; ///< false: too few values for one, a line joins the ends

    /// A bar or line from high to low with a mark at the typical value.
    void paint(QPainter &painter, const ShiftAxis &axis, double top, double height,
               const QColor &colour) const;
};

/// The colour of a class of motifs, derived from its name: "CH2 next to oxygen", "Ar-NH". Heteroatoms have
/// the colours that the infrared charts give to bonds with them, softened.
QColor classColour(const QString &name);
