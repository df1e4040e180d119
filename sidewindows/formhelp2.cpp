#include "sidewindows/formhelp2.h"

#include "widgets/controls.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"
#include "widgets/titleframe.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int AbbreviationWidth = 100;
constexpr int JournalWidth = 330;
constexpr int ListHeight = 290;

} // namespace

Formhelp2::Formhelp2(const MemoryTables &tables, QWidget &form1) : SideWindow("Formhelp2", form1)
{
    setWindowTitle(QStringLiteral("Abréviations"));
    for (int row = 1; row < tables.NmrReferenceData.rowCount() && !tables.NmrReferenceData(row, 0).isEmpty();
         ++row) {
        m_journals.append(tables.NmrReferenceData(row, 0));
        m_journals.appendSubItem(tables.NmrReferenceData(row, 1));
    }
    auto *cmdOK = Controls::named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);

    auto *column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setSpacing(8);
    column->addLayout(buildCode());
    column->addSpacing(4);
    column->addWidget(Controls::heading(QStringLiteral("Label3(1)"), QStringLiteral("Abbreviations"), this));
    column->addWidget(buildList());
    column->addWidget(cmdOK, 0, Qt::AlignRight);
}

QLayout *Formhelp2::buildCode()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(Controls::heading(QStringLiteral("Label3(0)"), QStringLiteral("Code : "), this));
    QLabel *example =
        Controls::label(QStringLiteral("Label2"),
                        QStringLiteral("J. Org. Chem 1989, 54, 4436 = JOC-89-4436 or JOC-(54)-4436"), this);
    example->setMargin(1); // the J of some fonts begins left of its place
    row->addWidget(example, 1);
    return row;
}

QWidget *Formhelp2::buildList()
{
    auto *area = new QWidget(this);
    area->setFont(ModulePanel::fittingFont(font())); // fixed in size like the panes
    auto *ListView100 = new RowListView(
        QStringLiteral("ListView100"), m_journals,
        {{QStringLiteral("Abbrev."), AbbreviationWidth}, {QStringLiteral("Journal"), JournalWidth}}, area);
    const int scrollBar = 24;
    ListView100->setGeometry(0, TitleFrame::OneLine, AbbreviationWidth + JournalWidth + scrollBar,
                             ListHeight);
    ControlArray<QLabel> titles("Label1");
    (new TitleFrame(QStringLiteral("grdFrame1"), area, TitleFrame::OneLine))
        ->addTitles(*ListView100, titles, {0, 1});
    area->setFixedSize(ListView100->width(), TitleFrame::OneLine + ListHeight);
    return area;
}

void openJournals(const MemoryTables &tables, QWidget &form1)
{
    (new Formhelp2(tables, form1))->showAboveOwner();
}
