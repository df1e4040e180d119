#include "sidewindows/frmscale.h"

#include "widgets/controls.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int TextWidth = 340;
constexpr int Step = 5;

} // namespace

frmScale::frmScale(const Scale &scale, QWidget &form1) : SideWindow("frmScale", form1), m_scale(scale)
{
    setWindowTitle(QStringLiteral("Size"));
    spnScale = Controls::named(new QSpinBox(this), QStringLiteral("spnScale"));
    spnScale->setRange(Scale::Least, Scale::Most);
    spnScale->setSingleStep(Step);
    spnScale->setSuffix(QStringLiteral(" %"));
    QLabel *caption =
        Controls::label(QStringLiteral("lblScale"), QStringLiteral("&Size of all windows:"), this);
    caption->setBuddy(spnScale);
    QLabel *note = Controls::label(
        QStringLiteral("lblNote"),
        QStringLiteral("The program takes another size when it starts. It comes back to the same pane, tab "
                       "and row, with the numbers that you have typed."),
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
    const auto make = [this](const QString &caption, const QString &name) {
        return Controls::named(new QPushButton(caption, this), name);
    };
    cmdStartAgain = make(QStringLiteral("Start again &now"), QStringLiteral("cmdStartAgain"));
    cmdStartAgain->setDefault(true);
    cmdStartAgain->setEnabled(false);
    auto *cmdLater = make(QStringLiteral("&Later"), QStringLiteral("cmdLater"));
    auto *cmdCancel = make(QStringLiteral("&Cancel"), QStringLiteral("cmdCancel"));
    cmdLater->setAutoDefault(false);
    cmdCancel->setAutoDefault(false);
    connect(cmdStartAgain, &QPushButton::clicked, this, [this] { choose(true); });
    connect(cmdLater, &QPushButton::clicked, this, [this] { choose(false); });
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    auto *row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton *button : {cmdStartAgain, cmdLater, cmdCancel})
        row->addWidget(button);
    return row;
}

int frmScale::percent() const
{
    return spnScale->value();
}

void frmScale::setPercent(int percent)
{
    spnScale->setValue(percent);
    spnScale->selectAll(); // a typed number takes its place
}

void frmScale::choose(bool now)
{
    Q_EMIT chosen(percent(), now);
    close();
}
