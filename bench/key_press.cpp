// The time from a key press until its effect is painted: in the search text against repainting the list, in
// the conversions against repainting their two fields.

#include "bench/frames.h"
#include "widgets/rowlistview.h"

#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr double SearchTarget = 1.5;
constexpr double ConversionTarget = 2;
constexpr int ShowSolvents = 1119;
constexpr int ShowCalculations = 1120;
constexpr int Find = 1121;
constexpr int Presses = 100;

void press(QWidget &field, Qt::Key key, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&field, &event);
    }
}

// The field is empty before each press. Both sides paint @p painted; the press also paints its other effects.
QList<Measure::Sample> presses(QLineEdit &field, Qt::Key key, const QString &text,
                               const QList<QWidget *> &painted)
{
    const auto repaint = [&] {
        for (QWidget *widget : painted)
            widget->update();
    };
    QWidget &last = *painted.last();
    QList<Measure::Sample> samples;
    for (int run = 0; run < Presses; ++run) {
        Frames::untilPainted(last, [&] {
            field.clear();
            last.update();
        });
        const double floor = Measure::time([&] { Frames::untilPainted(last, repaint); });
        samples << Measure::Sample{floor, Measure::time([&] {
                                       Frames::untilPainted(last, [&] {
                                           press(field, key, text);
                                           repaint();
                                       });
                                   })};
        if (field.text() != text)
            throw std::runtime_error("the key did not arrive");
    }
    return samples;
}

void search(Form1 &form, Measure &measure)
{
    form.executeCommand(ShowSolvents);
    form.executeCommand(Find);
    auto &list = Frames::control<RowListView>(form, "ListView1");
    measure.add(u"key in the search text / repaint of the list"_s,
                presses(Frames::control<QLineEdit>(form, "TextBoxM6"), Qt::Key_A, u"a"_s, {list.viewport()}),
                SearchTarget);
}

void conversion(Form1 &form, Measure &measure)
{
    form.executeCommand(ShowCalculations);
    auto &number = Frames::control<QLineEdit>(form, "TextBoxM1");
    auto &result = Frames::control<QLineEdit>(form, "TextBoxM2");
    measure.add(u"key in the conversions / repaint of the fields"_s,
                presses(number, Qt::Key_7, u"7"_s, {&number, &result}), ConversionTarget);
    if (result.text().isEmpty())
        throw std::runtime_error("nothing was converted");
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return ProgramRun::measured([](Form1 &form, Measure &measure) {
        search(form, measure);
        conversion(form, measure);
    });
}
