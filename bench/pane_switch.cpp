// The time from a command until its pane is painted, from every other pane, against repainting the pane.

#include "bench/frames.h"

using namespace Qt::StringLiterals;

namespace {

// Tool bar, status bar and the pane that is hidden take a third of a millisecond for every pane: more than
// the whole repaint of a nearly empty one.
constexpr double AllTarget = 1.5; // hiding and showing come on top of the repaint
constexpr double SwitchTarget = 4;
constexpr int Rounds = 5;

struct Pane
{
    int command;
    const char *frame;
};

constexpr std::array Shown{
    Pane{1108, "Frametable"}, Pane{1106, "frmsolv"},  Pane{1113, "frmsolution"}, Pane{1109, "frmbioch"},
    Pane{1111, "frmana"},     Pane{1139, "frmrea"},   Pane{1120, "Frame2"},      Pane{1141, "frmelec"},
    Pane{1132, "frmbiblio"},  Pane{1138, "frmpolym"}, Pane{1131, "frmdon"},
};

void show(Form1 &form, const Pane &pane)
{
    auto &panel = Frames::control<ModulePanel>(form, pane.frame);
    if (!panel.isVisible())
        Frames::untilPainted(panel, [&] { form.executeCommand(pane.command); });
}

// With all children: those that fill their own background are not repainted with the pane.
void repaint(ModulePanel &panel)
{
    Frames::untilPainted(panel, [&] {
        panel.update();
        for (QWidget *child : panel.findChildren<QWidget *>())
            child->update();
    });
}

QList<Measure::Sample> switchesTo(const Pane &pane, Form1 &form)
{
    auto &panel = Frames::control<ModulePanel>(form, pane.frame);
    QList<Measure::Sample> samples;
    for (int round = 0; round < Rounds; ++round) {
        for (const Pane &from : Shown) {
            if (from.command == pane.command)
                continue;
            show(form, from);
            const double measured = Measure::time([&] { show(form, pane); });
            samples << Measure::Sample{Measure::time([&] { repaint(panel); }), measured};
        }
    }
    return samples;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return ProgramRun::measured([](Form1 &form, Measure &measure) {
        for (const Pane &pane : Shown)
            show(form, pane); // builds them all
        QList<Measure::Sample> rounds(Rounds, {0, 0});
        for (const Pane &pane : Shown) {
            const QList<Measure::Sample> samples = switchesTo(pane, form);
            measure.add(u"switch to %1 / repaint"_s.arg(QLatin1StringView(pane.frame)), samples,
                        SwitchTarget);
            for (qsizetype i = 0; i < samples.size(); ++i) {
                Measure::Sample &round = rounds[i % Rounds];
                round.floor += samples[i].floor;
                round.measured += samples[i].measured;
            }
        }
        measure.add(u"all %1 switches / repaints"_s.arg(Shown.size() * (Shown.size() - 1)), rounds,
                    AllTarget);
    });
}
