#include "bench/measure.h"

#include <QTextStream>
#include <algorithm>
#include <cmath>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr double Shortest = 0.3; // ms; the clock takes a ten-thousandth of that

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Number of calls in one measurement.
int callsOf(const Measure::Action &action)
{
    return std::max(1, int(std::ceil(Shortest / std::max(Measure::time(action), 1e-6))));
}

double timeOfEach(int calls, const Measure::Action &action)
{
    return Measure::time([&] {
               for (int call = 0; call < calls; ++call)
                   action();
           }) /
           calls;
}

// The slope of the straight line through the points by least squares.
double slope(const QList<double> &x, const QList<double> &y)
{
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumXY = 0;
    for (qsizetype i = 0; i < x.size(); ++i) {
        sumX += x[i];
        sumY += y[i];
        sumXX += x[i] * x[i];
        sumXY += x[i] * y[i];
    }
    const auto n = double(x.size());
    return (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
}

QList<double> logarithms(QList<double> values)
{
    for (double &value : values)
        value = std::log(value);
    return values;
}

} // namespace

double Measure::time(const Action &action)
{
    const double begin = processorTime();
    action();
    return processorTime() - begin;
}

void Measure::add(const QString &what, const QList<Sample> &samples, double target)
{
    QList<double> floors;
    QList<double> measured;
    QList<double> ratios;
    for (const Sample &sample : samples) {
        floors << sample.floor;
        measured << sample.measured;
        ratios << sample.measured / sample.floor;
    }
    const double ratio = median(measured) / median(floors);
    print(what, median(floors), median(measured), QString::number(ratio, 'f', 2), ratio > target, target,
          ratios);
}

void Measure::compare(const QString &what, const Action &floor, const Action &measured, double target)
{
    floor(); // warms the caches
    measured();
    const int floorCalls = callsOf(floor);
    const int measuredCalls = callsOf(measured);
    QList<Sample> samples;
    for (int run = 0; run < Runs; ++run)
        samples << Sample{timeOfEach(floorCalls, floor), timeOfEach(measuredCalls, measured)};
    add(what, samples, target);
}

void Measure::growth(const QString &what, const QList<Size> &sizes, double target)
{
    QList<int> calls;
    QList<double> rows;
    QStringList numbers;
    for (const Size &size : sizes) {
        size.action(); // warms the caches
        calls << callsOf(size.action);
        rows << size.rows;
        numbers << QString::number(size.rows);
    }
    QList<QList<double>> times(sizes.size());
    QList<double> exponents;
    for (int run = 0; run < Runs; ++run) {
        QList<double> ofRun;
        for (qsizetype i = 0; i < sizes.size(); ++i) {
            ofRun << timeOfEach(calls[i], sizes[i].action);
            times[i] << ofRun.last();
        }
        exponents << slope(logarithms(rows), logarithms(ofRun));
    }
    QList<double> medians;
    for (const QList<double> &ofSize : times)
        medians << median(ofSize);
    const double exponent = slope(logarithms(rows), logarithms(medians));
    print(u"%1: %2 rows"_s.arg(what, numbers.join(u", "_s)), medians.first(), medians.last(),
          u"n^%1"_s.arg(exponent, 0, 'f', 2), exponent > target, target, exponents);
}

// bench/start_to_idle.py prints the same kind of lines.
void Measure::print(const QString &what, double floor, double measured, const QString &ratio, bool missed,
                    double target, QList<double> ratios)
{
    m_missed = m_missed || missed;
    std::sort(ratios.begin(), ratios.end());
    const bool quick = measured < 0.1;
    const double scale = quick ? 1e3 : 1;
    QTextStream(stdout) << u"%1%2%3%4%5%6   %7 to %8%9\n"_s.arg(what, -52)
                               .arg(quick ? u"µs"_s : u"ms"_s, -4)
                               .arg(floor * scale, 10, 'f', 3)
                               .arg(measured * scale, 10, 'f', 3)
                               .arg(ratio, 8)
                               .arg(target, 8, 'f', 2)
                               .arg(ratios[ratios.size() / 4], 0, 'f', 2)
                               .arg(ratios[ratios.size() * 3 / 4], 0, 'f', 2)
                               .arg(missed ? u"   MISSED"_s : QString());
}

int measureAll(const std::function<void(Measure &)> &body)
{
    try {
        Measure measure;
        body(measure);
        return measure.hasMissed() ? 1 : 0;
    } catch (const std::exception &error) {
        QTextStream(stderr) << error.what() << '\n';
        return 2;
    }
}
