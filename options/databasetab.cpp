#include "options/databasetab.h"

#include "core/desktop.h"
#include "options/filefigures.h"
#include "widgets/controls.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int GroupSpacing = 18; // logical pixels

} // namespace

DatabaseTab::DatabaseTab(Module1 &module, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_desktop(desktop), m_maintenance(module, desktop), m_actions(new QGridLayout)
{
    setObjectName(QStringLiteral("frmbdd"));
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(Controls::heading(QStringLiteral("Label1(0)"), QStringLiteral("Properties"), this));
    QLabel *pathLabel = Controls::label(QStringLiteral("Label2"), QStringLiteral("Database &path:"), this);
    rows->addWidget(pathLabel);
    Text1 = Controls::named(new QLineEdit(this), QStringLiteral("Text1"));
    Text1->setReadOnly(true);
    pathLabel->setBuddy(Text1);
    rows->addWidget(Text1);
    Label5 = Controls::label(QStringLiteral("Label5"), {}, this);
    Label6 = Controls::label(QStringLiteral("Label6"), {}, this);
    rows->addWidget(Label5);
    rows->addWidget(Label6);

    rows->addSpacing(GroupSpacing);
    rows->addWidget(Controls::heading(QStringLiteral("Label1(1)"), QStringLiteral("Security"), this));
    rows->addLayout(m_actions);
    m_actions->setColumnStretch(0, 1);
    const QPushButton *Command10 =
        addAction(QStringLiteral("Label3"), QStringLiteral("Open the database with Microsoft Access:"),
                  QStringLiteral("Command10"), QStringLiteral("Ope&n..."));
    const QPushButton *Command1 =
        addAction(QStringLiteral("Label4(0)"), QStringLiteral("Make a back-up copy of the database:"),
                  QStringLiteral("Command1"), QStringLiteral("Sa&ve..."));
    const QPushButton *Command2 =
        addAction(QStringLiteral("Label4(1)"), QStringLiteral("Back-up the original database:"),
                  QStringLiteral("Command2"), QStringLiteral("&Restore"));
    rows->addStretch();

    connect(Command10, &QPushButton::clicked, this, [this] { m_maintenance.open(); });
    connect(Command1, &QPushButton::clicked, this,
            [this] { endOnError(m_desktop, [this] { m_maintenance.DatabaseSaveCopy(); }); });
    connect(Command2, &QPushButton::clicked, this, [this] { endOnError(m_desktop, [this] { restore(); }); });
}

QPushButton *DatabaseTab::addAction(const QString &labelName, const QString &text, const QString &buttonName,
                                    const QString &caption)
{
    QLabel *label = Controls::label(labelName, text, this);
    auto *button = Controls::named(new QPushButton(caption, this), buttonName);
    button->setAutoDefault(false);
    label->setBuddy(button);
    const int row = m_actions->rowCount();
    m_actions->addWidget(label, row, 0);
    m_actions->addWidget(button, row, 1);
    return button;
}

void DatabaseTab::load()
{
    Text1->setText(QDir::toNativeSeparators(m_maintenance.databasePath()));
    showFigures(QStringLiteral("File size:   "), QStringLiteral("Modification date:   "));
}

// After a Restore the two captions are French, also in this build.
void DatabaseTab::restore()
{
    if (!m_maintenance.restore())
        return;
    Q_EMIT databaseReplaced();
    showFigures(QStringLiteral("Taille du fichier :   "),
                QStringLiteral("Date de modification du fichier :   "));
}

void DatabaseTab::showFigures(const QString &sizeCaption, const QString &dateCaption)
{
    const QString path = m_maintenance.databasePath();
    Label5->setText(sizeCaption + FileFigures::kilobytes(FileFigures::fileLength(path)));
    Label6->setText(dateCaption + FileFigures::modificationDate(path));
}
