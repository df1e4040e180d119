#include "sidewindows/frmscale.h"

#include "widgets/controls.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextWidth = 340;
constexpr int Step = 5;

} // namespace

frmScale::frmScale(const Scale &scale, QWidget &form1) : SideWindow("frmScale", form1), m_scale(scale)
{
    setWindowTitle(u"Size"_s);
    spnScale = Controls::named(new QSpinBox(this), u"spnScale"_s);
    spnScale->setRange(Scale::Least, Scale::Most);
    spnScale->setSingleStep(Step);
    spnScale->setSuffix(u" %"_s);
    QLabel *caption = Controls::label(u"lblScale"_s, u"&Size of all windows:"_s, this);
    caption->setBuddy(spnScale);
    QLabel *note = Controls::label(
        u"lblNote"_s,
        u"A new size takes effect at the next start. With Start again now, you come back to the same "
        "pane, tab and row, with the numbers that you have typed."_s,
        this);
    note->setWordWrap(true);
    note->setFixedSize(TextWidth, note->heightForWidth(TextWidth));

    auto *line = new QHBoxLayout;
    line->addWidget(caption);
    line->addWidget(spnScale);
    line->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setSpacing(12);
    column->addLayout(line);
    column->addWidget(note);
    column->addLayout(buildButtons());
    connect(spnScale, &QSpinBox::valueChanged, this,
            [this](int value) { cmdStartAgain->setEnabled(value != m_scale.percent); });
    setPercent(scale.percent);
}

QLayout *frmScale::buildButtons()
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    const auto add = [&](const QString &caption, const QString &name) {
        auto *button = Controls::named(new QPushButton(caption, this), name);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    cmdStartAgain = add(u"Start again &now"_s, u"cmdStartAgain"_s);
    cmdStartAgain->setDefault(true);
    cmdStartAgain->setEnabled(false);
    auto *cmdLater = add(u"&Later"_s, u"cmdLater"_s);
    auto *cmdCancel = add(u"&Cancel"_s, u"cmdCancel"_s);
    connect(cmdStartAgain, &QPushButton::clicked, this, [this] { choose(true); });
    connect(cmdLater, &QPushButton::clicked, this, [this] { choose(false); });
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    return row;
}

int frmScale::percent() const
{
    return spnScale->value();
}

void frmScale::setPercent(int percent)
{
    spnScale->setValue(percent);
    spnScale->selectAll(); // typing replaces it
}

void frmScale::choose(bool now)
{
    Q_EMIT chosen(percent(), now);
    close();
}
