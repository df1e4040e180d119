#include "options/statisticstab.h"

#include "core/buildsettings.h"
#include "core/module1.h"
#include "options/filefigures.h"
#include "options/statistics.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int GroupSpacing = 18;
constexpr int CaptionWidth = 190; // the same on all pages, so the numbers do not move
constexpr int ValueWidth = 130;

QString labelName(int number)
{
    return u"Label%1"_s.arg(number);
}

QLabel *addValue(QGridLayout &grid, int row, QLabel *caption, const QString &name)
{
    QLabel *value = Controls::label(name, {}, caption->parentWidget());
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(caption, row, 0);
    grid.addWidget(value, row, 1);
    return value;
}

QGridLayout *makeGrid()
{
    auto *grid = new QGridLayout;
    grid->setColumnMinimumWidth(0, CaptionWidth);
    grid->setColumnMinimumWidth(1, ValueWidth);
    grid->setColumnStretch(2, 1);
    return grid;
}

} // namespace

StatisticsTab::StatisticsTab(const DataStore &store, const Module1 &module, QWidget *parent)
    : QWidget(parent), m_module(module)
{
    setObjectName(u"frmstat"_s);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(Controls::heading(u"Label1(4)"_s, u"Space occupation"_s, this));
    QGridLayout *space = makeGrid();
    const auto addSpace = [&](int index, const QString &text, const char *valueName) {
        QLabel *caption = &Label7.add(index, Controls::label({}, text, this));
        return addValue(*space, index, caption, valueName);
    };
    Label27 = addSpace(0, u"Alembra folder:"_s, "Label27");
    Label28 = addSpace(1, u"Application file:"_s, "Label28");
    Label29 = addSpace(2, u"Data folder:"_s, "Label29");
    Label26 = addSpace(3, u"Database file:"_s, "Label26");
    rows->addLayout(space);

    rows->addSpacing(GroupSpacing);
    auto *chooser = new QHBoxLayout;
    QLabel *heading = Controls::heading(u"Label1(11)"_s, u"Database con&tents"_s, this);
    Combo1 = Controls::named(new QComboBox(this), u"Combo1"_s);
    heading->setBuddy(Combo1);
    chooser->addWidget(heading);
    chooser->addSpacing(GroupSpacing / 2);
    chooser->addWidget(Combo1);
    chooser->addStretch();
    rows->addLayout(chooser);
    rows->addSpacing(GroupSpacing / 3);
    rows->addLayout(buildCounts(store));
    rows->addStretch();
}

// All pages share the same cells; hidden ones take no room.
QLayout *StatisticsTab::buildCounts(const DataStore &store)
{
    QGridLayout *grid = makeGrid();
    for (const Statistics::Page &page : Statistics::pages()) {
        QList<QLabel *> labels;
        for (const Statistics::Count &count : page.counts) {
            const int row = int(labels.size()) / 2;
            QLabel *caption = Controls::label(labelName(count.captionLabel), count.caption, this);
            QLabel *value = addValue(*grid, row, caption, labelName(count.valueLabel));
            value->setText(QString::number(count.value(store, m_module)));
            labels << caption << value;
        }
        m_pages << labels;
        Combo1->addItem(page.name);
    }
    connect(Combo1, &QComboBox::currentIndexChanged, this, &StatisticsTab::showPage);
    Combo1->setCurrentIndex(0);
    showPage(0);
    return grid;
}

void StatisticsTab::showPage(int shown)
{
    for (int page = 0; page < m_pages.size(); ++page) {
        for (QLabel *label : std::as_const(m_pages[page]))
            label->setVisible(page == shown);
    }
}

void StatisticsTab::load()
{
    using namespace FileFigures;
    // The program may use two folders.
    QStringList folders{m_module.AppFolder};
    if (!m_module.ShippedFolder.isEmpty())
        folders << m_module.ShippedFolder;
    qint64 size = 0;
    qint64 dataSize = 0;
    for (const QString &folder : std::as_const(folders)) {
        size += folderSize(folder);
        dataSize += folderSize(folder + u"/Data"_s);
    }
    Label27->setText(megabytes(size));
    Label28->setText(kilobytes(fileLength(m_module.shippedFile(BuildSettings::Executable))));
    Label29->setText(megabytes(dataSize));
    Label26->setText(kilobytes(fileLength(m_module.AppFolder + u"/Data/Database_uk.mdb"_s)));
}
