#include "options/generaltab.h"

#include "options/optioncontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

struct Box
{
    int index;
    const char *caption;
};

constexpr std::array DisplayBoxes{
    Box{1, " &Tip of the day"},      Box{2, " &Help ballon tips"},
    Box{6, " Tables gride&lines"},   Box{3, " Str&ucture of solvents and amino acids"},
    Box{5, " &Picture of elements"}, Box{4, " &Zoom-in on the picture of elements"},
};

// Logical pixels.
constexpr int GroupSpacing = 18;
constexpr int Indent = 22; // of what hangs on the box above

class Builder final
{
public:
    Builder(OptionControls &controls, QWidget &frame)
        : m_controls(controls), m_frame(frame), m_rows(new QVBoxLayout(&frame))
    {}

    void buildDisplay()
    {
        addHeading(12, QStringLiteral("Display"));
        auto *boxes = new QGridLayout;
        for (int i = 0; i < int(DisplayBoxes.size()); ++i)
            boxes->addWidget(addBox(DisplayBoxes[size_t(i)]), i % 3, i / 3);
        m_rows->addLayout(boxes);
        m_rows->addSpacing(GroupSpacing / 2);

        auto *choices = new QGridLayout;
        choices->setColumnStretch(3, 1);
        m_controls.Combo2 = Controls::named(new QComboBox(&m_frame), QStringLiteral("Combo2"));
        choices->addWidget(addLabel(0, QStringLiteral("Style of &menus:"), *m_controls.Combo2), 0, 0);
        choices->addWidget(m_controls.Combo2, 0, 1, 1, 2);
        QRadioButton *frequency = addButton(3, QStringLiteral("&Frequency"));
        choices->addWidget(addLabel(1, QStringLiteral("IR graduation:"), *frequency), 1, 0);
        choices->addWidget(frequency, 1, 1);
        choices->addWidget(addButton(2, QStringLiteral("&Wavelength")), 1, 2);
        m_rows->addLayout(choices);
    }

    void buildParameters()
    {
        m_rows->addSpacing(GroupSpacing);
        addHeading(13, QStringLiteral("Parameters"));
        auto *module = new QHBoxLayout;
        m_controls.Check10 =
            Controls::named(new QCheckBox(QStringLiteral(" Selected module o&n startup:"), &m_frame),
                            QStringLiteral("Check10"));
        m_controls.Combo3 = Controls::named(new QComboBox(&m_frame), QStringLiteral("Combo3"));
        m_controls.Combo3->setAccessibleName(QStringLiteral("Selected module on startup:"));
        m_controls.Combo3->setEnabled(false);
        module->addWidget(m_controls.Check10);
        module->addWidget(m_controls.Combo3);
        module->addStretch();
        m_rows->addLayout(module);
        m_rows->addWidget(addBox({7, " M&inimize the application in the SysTray"}));
        auto *balloon = new QHBoxLayout;
        balloon->addSpacing(Indent);
        // The click rule speaks only when a box changes.
        QCheckBox *tip = addBox({8, " &Activate the SysTray ballon tip"});
        tip->setEnabled(false);
        balloon->addWidget(tip);
        m_rows->addLayout(balloon);
        m_rows->addStretch();
    }

private:
    void addHeading(int index, const QString &text)
    {
        m_rows->addWidget(Controls::heading(Controls::indexedName("Label1", index), text, &m_frame));
    }

    QLabel *addLabel(int index, const QString &text, QWidget &named)
    {
        QLabel *label = Controls::label(Controls::indexedName("Label41", index), text, &m_frame);
        label->setBuddy(&named);
        return label;
    }

    QCheckBox *addBox(const Box &box)
    {
        return &m_controls.Check1.add(box.index, new QCheckBox(QLatin1StringView(box.caption), &m_frame));
    }

    QRadioButton *addButton(int index, const QString &text)
    {
        return &m_controls.Option1.add(index, new QRadioButton(text, &m_frame));
    }

    OptionControls &m_controls;
    QWidget &m_frame;
    QVBoxLayout *m_rows;
};

} // namespace

QWidget *makeGeneralTab(OptionControls &controls, QWidget *parent)
{
    auto *frmgen = Controls::named(new QWidget(parent), QStringLiteral("frmgen"));
    Builder builder(controls, *frmgen);
    builder.buildDisplay();
    builder.buildParameters();
    return frmgen;
}
