#pragma once

#include <QList>
#include <QString>
#include <functional>

/// The lines of the table that bench/run prints, each with a verdict:
///
///     what   unit   floor   measured   ratio   target   spread
///
/// The floor is what no program could do without, the bare repaint, decoding or writing. Floor and measured
/// thing run in turn, so that whatever else the machine does meets both, and only their ratio is judged: that
/// of the medians. The spread is that of the ratio, run by run: its middle half.
class Measure final
{
public:
    using Action = std::function<void()>;

    /// One run of both, in milliseconds.
    struct Sample
    {
        double floor;
        double measured;
    };

    /// An action and the number of rows that it works on.
    struct Size
    {
        int rows;
        Action action;
    };

    /// How often things are measured that take milliseconds.
    static constexpr int Runs = 51;

    /// Milliseconds that the processor works for one call.
    static double time(const Action &action);

    /// Prints the line of @p samples, of which there is at least one; the ratio must not exceed @p target.
    void add(const QString &what, const QList<Sample> &samples, double target);

    /// Measures @p floor against @p measured. What is too quick for the clock is repeated.
    void compare(const QString &what, const Action &floor, const Action &measured, double target);

    /// Prints how the time grows from the smallest to the largest of @p sizes: the slope of its logarithm
    /// over that of the rows, 1 for a straight line. It stands in place of the ratio, and the times of the
    /// smallest and the largest in place of floor and measured.
    void growth(const QString &what, const QList<Size> &sizes, double target);

    bool hasMissed() const { return m_missed; }

private:
    void print(const QString &what, double floor, double measured, const QString &ratio, bool missed,
               double target, QList<double> ratios);

    bool m_missed = false;
};

/// The body of a `main`: status 0, 1 if a figure missed its target, 2 with a message on the standard error
/// stream if @p body throws.
int measureAll(const std::function<void(Measure &)> &body);
