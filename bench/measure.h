#pragma once

#include <QList>
#include <QString>
#include <functional>

/// The lines of the table that bench/run prints, each with a verdict:
///
///     what   unit   floor   measured   ratio   target   spread
///
/// The floor is the work that no program can avoid: the bare repaint, decoding or writing. Floor and measured
/// action run in turn, so that other load on the machine affects both. Only the ratio of the medians is
/// judged. The spread is the middle half of the ratios of the single runs.
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

    /// Number of runs of what takes milliseconds.
    static constexpr int Runs = 51;

    /// Processor time of one call, in milliseconds.
    static double time(const Action &action);

    /// Prints the line of @p samples, of which there is at least one; the ratio must not exceed @p target.
    void add(const QString &what, const QList<Sample> &samples, double target);

    /// Measures @p floor against @p measured. Actions too quick for the clock are repeated.
    void compare(const QString &what, const Action &floor, const Action &measured, double target);

    /// Prints how the time grows from the smallest to the largest of @p sizes: the slope of its logarithm
    /// over that of the rows, 1 if the time is proportional. It is printed instead of the ratio, the times of
    /// the smallest and the largest instead of floor and measured.
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
