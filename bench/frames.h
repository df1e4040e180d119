#pragma once

#include "app/form1.h"
#include "bench/measure.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"

#include <QElapsedTimer>
#include <stdexcept>

/// Runs the whole program, offscreen and on a copy of its folder, to measure in its windows.
class ProgramRun final : private WholeRun
{
public:
    /// Runs @p walk in the program's event loop, once its main window is visible. Returns the exit status.
    static int measured(const std::function<void(Form1 &, Measure &)> &walk)
    {
        return measureAll([&walk](Measure &measure) {
            std::exception_ptr failure; // an exception must not cross an event loop
            ProgramRun program;
            program.run(ProgramFolder(), [&](Form1 &form) {
                try {
                    walk(form, measure);
                } catch (...) {
                    failure = std::current_exception();
                }
            });
            if (failure)
                std::rethrow_exception(failure);
        });
    }
};

namespace Frames {

/// Records whether a widget has been painted.
class PaintWatch final : public QObject
{
public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }
    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// Runs @p action, then the event loop until @p widget has been painted.
inline void untilPainted(QWidget &widget, const Measure::Action &action)
{
    constexpr int Patience = 5000; // ms
    PaintWatch watch(widget);
    QElapsedTimer timer;
    timer.start();
    action();
    while (!watch.painted) {
        QCoreApplication::processEvents();
        if (timer.hasExpired(Patience))
            throw std::runtime_error("never painted: " + widget.objectName().toStdString());
    }
}

template<class W>
W &control(const QWidget &window, const char *name)
{
    auto *found = window.findChild<W *>(QLatin1StringView(name));
    if (!found)
        throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

} // namespace Frames
