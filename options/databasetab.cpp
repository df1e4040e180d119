#include "options/databasetab.h"

#include "core/desktop.h"
#include "options/filefigures.h"
#include "widgets/controls.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int GroupSpacing = 18; // logical pixels

} // namespace

DatabaseTab::DatabaseTab(Module1 &module, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_desktop(desktop), m_maintenance(module, desktop), m_actions(new QGridLayout)
{
    setObjectName(u"frmbdd"_s);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(Controls::heading(u"Label1(0)"_s, u"Properties"_s, this));
    QLabel *pathLabel = Controls::label(u"Label2"_s, u"Database &path:"_s, this);
    rows->addWidget(pathLabel);
    Text1 = Controls::named(new QLineEdit(this), u"Text1"_s);
    Text1->setReadOnly(true);
    pathLabel->setBuddy(Text1);
    rows->addWidget(Text1);
    Label5 = Controls::label(u"Label5"_s, {}, this);
    Label6 = Controls::label(u"Label6"_s, {}, this);
    rows->addWidget(Label5);
    rows->addWidget(Label6);

    rows->addSpacing(GroupSpacing);
    rows->addWidget(Controls::heading(u"Label1(1)"_s, u"Security"_s, this));
    rows->addLayout(m_actions);
    m_actions->setColumnStretch(0, 1);
    const QPushButton *Command10 =
        addAction(u"Label3"_s, u"Open the database with Microsoft Access:"_s, u"Command10"_s, u"Ope&n..."_s);
    const QPushButton *Command1 =
        addAction(u"Label4(0)"_s, u"Make a back-up copy of the database:"_s, u"Command1"_s, u"Sa&ve..."_s);
    const QPushButton *Command2 =
        addAction(u"Label4(1)"_s, u"Back-up the original database:"_s, u"Command2"_s, u"&Restore"_s);
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
    showFigures(u"File size:   "_s, u"Modification date:   "_s);
}

// After a Restore the two captions are French. Intended.
void DatabaseTab::restore()
{
    if (!m_maintenance.restore())
        return;
    Q_EMIT databaseReplaced();
    showFigures(u"Taille du fichier :   "_s, u"Date de modification du fichier :   "_s);
}

void DatabaseTab::showFigures(const QString &sizeCaption, const QString &dateCaption)
{
    const QString path = m_maintenance.databasePath();
    Label5->setText(sizeCaption + FileFigures::kilobytes(FileFigures::fileLength(path)));
    Label6->setText(dateCaption + FileFigures::modificationDate(path));
}
