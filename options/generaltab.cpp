#include "options/generaltab.h"

#include "options/optioncontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

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
constexpr int Indent = 22; // of a box that depends on the one above

class Builder final
{
public:
    Builder(OptionControls &controls, QWidget &frame)
        : m_controls(controls), m_frame(frame), m_rows(new QVBoxLayout(&frame))
    {}

    void buildDisplay()
    {
        addHeading(12, u"Display"_s);
        auto *boxes = new QGridLayout;
        for (int i = 0; i < int(DisplayBoxes.size()); ++i)
            boxes->addWidget(addBox(DisplayBoxes[size_t(i)]), i % 3, i / 3);
        m_rows->addLayout(boxes);
        m_rows->addSpacing(GroupSpacing / 2);

        auto *choices = new QGridLayout;
        choices->setColumnStretch(3, 1);
        m_controls.Combo2 = Controls::named(new QComboBox(&m_frame), u"Combo2"_s);
        choices->addWidget(addLabel(0, u"Style of &menus:"_s, *m_controls.Combo2), 0, 0);
        choices->addWidget(m_controls.Combo2, 0, 1, 1, 2);
        QRadioButton *frequency = addButton(3, u"&Frequency"_s);
        choices->addWidget(addLabel(1, u"IR graduation:"_s, *frequency), 1, 0);
        choices->addWidget(frequency, 1, 1);
        choices->addWidget(addButton(2, u"&Wavelength"_s), 1, 2);
        m_rows->addLayout(choices);
    }

    void buildParameters()
    {
        m_rows->addSpacing(GroupSpacing);
        addHeading(13, u"Parameters"_s);
        auto *module = new QHBoxLayout;
        m_controls.Check10 =
            Controls::named(new QCheckBox(u" Selected module o&n startup:"_s, &m_frame), u"Check10"_s);
        m_controls.Combo3 = Controls::named(new QComboBox(&m_frame), u"Combo3"_s);
        m_controls.Combo3->setAccessibleName(u"Selected module on startup:"_s);
        m_controls.Combo3->setEnabled(false);
        module->addWidget(m_controls.Check10);
        module->addWidget(m_controls.Combo3);
        module->addStretch();
        m_rows->addLayout(module);
        m_rows->addWidget(addBox({7, " M&inimize the application in the SysTray"}));
        auto *balloon = new QHBoxLayout;
        balloon->addSpacing(Indent);
        // The click rules run only when a box changes.
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
        return &m_controls.Check1.add(box.index, new QCheckBox(box.caption, &m_frame));
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
    auto *frmgen = Controls::named(new QWidget(parent), u"frmgen"_s);
    Builder builder(controls, *frmgen);
    builder.buildDisplay();
    builder.buildParameters();
    return frmgen;
}
